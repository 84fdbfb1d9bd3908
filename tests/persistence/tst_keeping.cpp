// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/backup_file.h"
#include "platform/files.h"
#include "support/test_board.h"
#include "support/test_class.h"

#include <QPushButton>

using command::From;

namespace {

constexpr QPoint onTile{305, 205};
constexpr QPoint onNothing{500, 400};

/// A board of four tiles, with undo and backup on.
struct House : TestHouse
{
    House()
    {
        t.store.SaveSetting(u"Settings"_s, u"UseBackup"_s, u"1"_s);
        t.options.setBox(Setting::ConfirmBeforeErase, 0);
        controls.Text1->setText(u"2"_s);
        lay(wortelKind, 300, 200, u"halt"_s);
        lay(wortelKind, 300, 300, u"fahr"_s);
        lay(prefixKind, 100, 200, u"ver"_s);
        lay(suffixKind, 100, 300, u"ung"_s);
        t.writeFile(u"a.wlx"_s, session(u"neu"_s));
        t.writeFile(u"b.wlx"_s, session(u"alt"_s));
        MyObj array;
        array.AddElementToMyObj(u"M1"_s, 'S', 3, 4, u"lich"_s);
        writeFileAtomically(path("old.bak"), backup_file::encode(array));
        r.canvas.repaint();
        r.undo.ClearCollBuffer();
        form.show();
        settle();
    }

    static QString session(const QString &text)
    {
        return u"[Morpheme1]\r\nType=Wortel\r\nLeft=7\r\nTop=70\r\nCaption=%1\r\n"
               u"[NumObjects]\r\nObjCounter=1\r\n"_s.arg(text);
    }
    QString path(const char *name) const { return t.AppFolder + QLatin1String(name); }

    void menuAt(const QPoint &point, int id)
    {
        menu.choose = id;
        click(point, Qt::RightButton);
    }
    /// What the next file dialog gives; nothing: it is cancelled.
    void choose(const char *name)
    {
        t.fileDialogs.willOpen(name == nullptr ? QStringList() : QStringList(path(name)));
    }
    void cancelSoon()
    {
        t.pump.waiting = true;
        t.pump.onServe = [this] { gate.cancelWork(); };
    }
    void moveTile()
    {
        press(onTile);
        drag({355, 255});
        release({355, 255});
    }

    /// The tiles that the backup holds, as `described` tells them.
    QStringList kept() const
    {
        QStringList tiles;
        if (IsTextFile(path("WLXAutoSave.bak")))
            for (const BackupRecord &record : backup_file::decode(ReadWholeFile(path("WLXAutoSave.bak"))))
                if (record.type != 0)
                    tiles << u"%1,%2 %3"_s.arg(record.left).arg(record.top).arg(record.caption);
        return tiles;
    }
};

using Act = std::function<void(House &)>;

/// The row of the table, given as a hand gives it.
void give(House &house, const command::Command &row)
{
    constexpr Qt::KeyboardModifier shiftKeys[] = {Qt::ControlModifier, Qt::ShiftModifier, Qt::AltModifier};
    if (row.from == From::Key)
        house.key(Qt::Key(Qt::Key_A + row.id - 1));
    else if (row.from == From::Pointer)
        house.click(onNothing, Qt::LeftButton, shiftKeys[row.argument]);
    else
        house.menuAt(row.from == From::TileMenu ? onTile : onNothing, row.id);
}

bool asksForText(const command::Command &row)
{
    const bool inserts = row.id == 103 || row.id == 204 || row.id == 303;
    return row.from == From::TileMenu ? row.id == 104 : inserts && row.from != From::Key;
}

QString nameOf(const command::Command &row)
{
    const char *const names[] = {"tile", "menu", "pointer", "key"};
    return u"%1 %2"_s.arg(QLatin1String(names[static_cast<int>(row.from)])).arg(row.id);
}

struct Way
{
    const char *name;
    Act act;
    int steps; ///< that undo can go back afterwards
};

// clang-format off
const Way otherWays[] = {
    {"Check2 left", [](House &h) { h.tool(h.controls.Check2); }, 1},
    {"Check2 right", [](House &h) { h.choose("text\\Hauptbausteine.Txt"), h.tool(h.controls.Check2, Qt::RightButton); }, 1},
    {"menu 201", [](House &h) { h.choose("text\\Hauptbausteine.Txt"), h.menuAt(onNothing, 201); }, 1},
    {"Wortel list", [](House &h) { emit h.controls.WortelList->rowClicked(0); }, 1},
    {"prefix list", [](House &h) { emit h.controls.PrefixList->rowClicked(0); }, 1},
    {"suffix list", [](House &h) { emit h.controls.SuffixList->rowClicked(0); }, 1},
    {"copy with Shift", [](House &h) { h.click(onTile, Qt::RightButton, Qt::ShiftModifier); }, 1},
    {"removal with Ctrl", [](House &h) { h.click(onTile, Qt::RightButton, Qt::ControlModifier); }, 1},
    {"session by dialog", [](House &h) { h.choose("a.wlx"), h.menuAt(onNothing, 1901); }, 0},
    {"session by path", [](House &h) { h.r.sessions.RestoreObjects(h.path("a.wlx")); }, 1},
    {"two sessions from outside", [](House &h) { h.form.HiddenText_Change(h.path("a.wlx") + u' ' + h.path("b.wlx")); }, 2},
    {"recovery", [](House &h) { h.r.backup.RestoreMyObjects(h.path("old.bak")); }, 0},
    {"move", &House::moveTile, 0},
    {"undo", [](House &h) { h.key(Qt::Key_A), h.key(Qt::Key_B), h.key(Qt::Key_I); }, 1},
    {"undo by menu", [](House &h) { h.key(Qt::Key_A), h.key(Qt::Key_B), h.menuAt(onNothing, 2801); }, 1},
    {"redo", [](House &h) { h.key(Qt::Key_A), h.key(Qt::Key_I), h.key(Qt::Key_J); }, 1},
    {"redo by menu", [](House &h) { h.key(Qt::Key_A), h.key(Qt::Key_I), h.menuAt(onNothing, 2802); }, 1},
    {"spreading that ends early", [](House &h) { h.cancelSoon(), h.menuAt(onNothing, 1505); }, 1},
};

/// What the player takes back: each asks for something and gets nothing.
const Way takenBack[] = {
    {"menu 201", [](House &h) { h.choose(nullptr), h.menuAt(onNothing, 201); }, 0},
    {"session", [](House &h) { h.choose(nullptr), h.menuAt(onNothing, 1901); }, 0},
    {"Check2, no number", [](House &h) { h.controls.Text1->setText(u"zwei"_s), h.t.boxes.willBeRead(), h.tool(h.controls.Check2); }, 0},
    {"removal with Ctrl", [](House &h) { h.t.boxes.willPress(1), h.click(onTile, Qt::RightButton, Qt::ControlModifier); }, 0},
    {"undo with nothing before", [](House &h) { h.key(Qt::Key_I), h.key(Qt::Key_J); }, 0},
};
// clang-format on

} // namespace

/// What undo and backup hold after each way that changes tiles.
class KeepingTest : public QObject
{
    Q_OBJECT

private slots:
    void everyChangeIsKept_data()
    {
        columns<Act, int>("act", "steps");
        for (const command::Command &row : command::table()) {
            if ((row.flags & command::Commits) == 0)
                continue;
            QTest::newRow(qPrintable(nameOf(row))) << Act([row](House &h) {
                if (asksForText(row))
                    h.t.boxes.willType(u"neu"_s);
                if (row.asks == command::Asks::Always)
                    h.t.boxes.willPress(0);
                give(h, row);
            }) << 1;
        }
        for (const Way &way : otherWays)
            QTest::newRow(way.name) << way.act << way.steps;
    }
    void everyChangeIsKept()
    {
        QFETCH(Act, act);
        QFETCH(int, steps);
        House house;
        const QStringList before = house.described();
        act(house);
        TestHouse::settle();
        house.t.pump.onServe = nullptr;
        QCOMPARE(house.kept(), house.described());
        QCOMPARE(house.trouble(), QString());
        QCOMPARE(house.offers(2801), steps > 0);
        int undone = 0;
        while (house.r.undo.CanUndo() && undone < 10) {
            house.key(Qt::Key_I);
            ++undone;
            QCOMPARE(house.kept(), house.described());
        }
        QCOMPARE(undone, steps);
        if (steps > 0)
            QCOMPARE(house.described(), before);
        QVERIFY(!house.offers(2801));
    }

    void whatIsTakenBackChangesNothing_data()
    {
        QTest::addColumn<Act>("act");
        for (const command::Command &row : command::table()) {
            if ((row.flags & command::Commits) == 0 ||
                (!asksForText(row) && row.asks == command::Asks::Nothing))
                continue;
            QTest::newRow(qPrintable(nameOf(row))) << Act([row](House &h) {
                asksForText(row) ? h.t.boxes.willType({}) : h.t.boxes.willPress(1);
                give(h, row);
            });
        }
        for (const Way &way : takenBack)
            QTest::newRow(way.name) << way.act;
    }
    void whatIsTakenBackChangesNothing()
    {
        QFETCH(Act, act);
        House house;
        house.t.options.setBox(Setting::ConfirmBeforeErase, 1);
        const QStringList before = house.described();
        writeFileAtomically(house.path("WLXAutoSave.bak"), "untouched");
        act(house);
        TestHouse::settle();
        QCOMPARE(house.described(), before);
        QVERIFY(!house.r.undo.CanUndo() && !house.r.undo.CanRedo());
        QCOMPARE(ReadWholeFile(house.path("WLXAutoSave.bak")), QByteArray("untouched"));
        QCOMPARE(house.trouble(), QString());
    }

    /// No step of its own, and not lost by one.
    void whatIsMovedByHandStaysMoved()
    {
        House house;
        house.moveTile();
        const QStringList arranged = house.described();
        house.menuAt(onNothing, 235);
        const QStringList capitals = house.described();
        house.key(Qt::Key_I);
        QCOMPARE(house.described(), arranged);
        house.key(Qt::Key_J);
        QCOMPARE(house.described(), capitals);
        house.key(Qt::Key_I);
        house.press({360, 260});
        house.drag({200, 150});
        house.release({200, 150});
        const QStringList again = house.described();
        QVERIFY(again != arranged && house.r.undo.CanRedo());
        house.key(Qt::Key_J);
        house.key(Qt::Key_I);
        QCOMPARE(house.described(), again);
        QVERIFY(!house.r.undo.CanUndo());
    }

    void undoKeepsTheFilter()
    {
        House house;
        QTest::mouseClick(house.controls.OptType[1], Qt::LeftButton);
        house.key(Qt::Key_A);
        const QColor board = house.pixel(310, 205);
        for (const Qt::Key letter : {Qt::Key_I, Qt::Key_J}) {
            house.key(letter);
            QCOMPARE(house.r.optTypes.selected(), 1);
            QCOMPARE(house.pixel(310, 205), board); // a Wortel tile lies there, not shown
            QVERIFY(house.pixel(110, 205) != board);
        }
    }

    void undoThatIsSwitchedOnBeginsWithTheBoardAsItIs()
    {
        House house;
        const auto setInOptions = [&house](int state) {
            house.t.boxes.willPress(0);
            QTimer::singleShot(0, &house.form, [&house, state] {
                house.t.options.setBox(Setting::UseUndo, state);
                QTest::mouseClick(house.r.options.findChild<QPushButton *>(u"cmdOK"_s), Qt::LeftButton);
            });
            house.tool(house.controls.Command6);
        };
        house.key(Qt::Key_A);
        setInOptions(0);
        QVERIFY(!house.offers(2801));
        house.key(Qt::Key_I);
        house.key(Qt::Key_A);
        const QStringList before = house.described();
        QCOMPARE(before.size(), 6);
        setInOptions(1);
        QVERIFY(!house.offers(2801));
        house.key(Qt::Key_A);
        QVERIFY(house.offers(2801));
        house.key(Qt::Key_I);
        QCOMPARE(house.described(), before);
        QVERIFY(!house.offers(2801) && house.offers(2802));
    }
};

WORTEL_TEST(KeepingTest)
#include "tst_keeping.moc"
