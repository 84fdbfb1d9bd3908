// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/hand/commands.h"
#include "platform/files.h"
#include "platform/work.h"
#include "support/test_class.h"
#include "support/test_house.h"

#include <QAction>
#include <QDragEnterEvent>
#include <QDropEvent>

#include <algorithm>

using command::From;

namespace {

using Act = std::function<void(TestHouse &)>;

struct NamedAct
{
    const char *name;
    Act act;
    bool keepsTexts;      ///< no text comes or goes
    bool isShort = false; ///< over before every way was tried
};

/// Every long work that lets a hand in.
const std::vector<NamedAct> works{
    {"spread all", [](TestHouse &h) { h.run(From::MainMenu, 1505); }, true},
    {"spread all, sorted", [](TestHouse &h) { h.run(From::MainMenu, 1522); }, false},
    {"spread Wortel tiles",
     [](TestHouse &h) {
         h.t.boxes.willPress(0);
         h.run(From::MainMenu, 241);
     },
     true},
    {"one more", [](TestHouse &h) { h.run(From::Key, 1); }, false, true},
    {"deal anew", [](TestHouse &h) { h.tool(h.controls.Check2); }, false},
    {"deal anew anywhere",
     [](TestHouse &h) {
         h.t.options.setBox(Setting::NoOverlapOnStart, 0);
         h.tool(h.controls.Check2);
     },
     false},
    {"insert 15", [](TestHouse &h) { h.run(From::MainMenu, 212); }, false, true},
    {"choose a list",
     [](TestHouse &h) {
         h.t.fileDialogs.willOpen({h.t.AppFolder + u"text\\Hauptbausteine.Txt"_s});
         h.tool(h.controls.Check2, Qt::RightButton);
     },
     false},
    {"retype the list", [](TestHouse &h) { h.tool(h.controls.Check4); }, true},
    {"retype the board", [](TestHouse &h) { h.tool(h.controls.Check4, Qt::RightButton); }, true},
    {"retype nonsense", [](TestHouse &h) { h.tool(h.controls.Check4, Qt::RightButton, Qt::ShiftModifier); },
     true},
};

void mouse(QWidget *widget, Qt::MouseButton button)
{
    const QPointF middle = widget->rect().center();
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        const auto held = type == QEvent::MouseButtonPress ? button : Qt::NoButton;
        QMouseEvent event(type, middle, widget->mapToGlobal(middle), button, held, Qt::NoModifier);
        QCoreApplication::sendEvent(widget, &event);
    }
}

void key(TestHouse &h, Qt::Key code, Qt::KeyboardModifiers shift = {})
{
    QWidget *focus = h.form.focusWidget() != nullptr ? h.form.focusWidget() : &h.form;
    QKeyEvent event(QEvent::KeyPress, code, shift);
    QCoreApplication::sendEvent(focus, &event);
}

/// Every way in of a hand that plays: each command by its menu, each key, each tool with both buttons, each
/// list, each entry of a list's menu, the word field, the board. Only what cancels is left out.
std::vector<NamedAct> waysToPlay(TestHouse &house)
{
    std::vector<NamedAct> ways;
    for (const command::Command &row : command::table())
        if (row.from == From::MainMenu || row.from == From::TileMenu)
            ways.push_back({"menu",
                            [id = row.id, onTile = row.from == From::TileMenu](TestHouse &h) {
                                h.menu.choose = id;
                                h.click(onTile ? QPoint(105, 110) : QPoint(5, 400), Qt::RightButton);
                            },
                            true});
    for (int letter = 0; letter < 26; ++letter)
        ways.push_back({"key",
                        [letter](TestHouse &h) {
                            key(h, static_cast<Qt::Key>(Qt::Key_A + letter), Qt::ControlModifier);
                        },
                        true});
    ways.push_back({"menu key", [](TestHouse &h) { key(h, Qt::Key_Menu); }, true});
    for (QWidget *tool : house.form.findChildren<QWidget *>()) {
        const bool pressed = qobject_cast<PressButton *>(tool) != nullptr ||
                             (qobject_cast<ClickLabel *>(tool) != nullptr && tool != house.controls.Label4);
        if (pressed && tool != house.controls.Check4)
            for (const auto button : {Qt::LeftButton, Qt::RightButton})
                ways.push_back({"tool", [tool, button](TestHouse &) { mouse(tool, button); }, true});
    }
    for (const auto shift : {Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier})
        for (const auto button : {Qt::LeftButton, Qt::RightButton})
            ways.push_back({"board",
                            [shift, button](TestHouse &h) {
                                h.press({105, 110}, button, shift);
                                h.drag({300, 300});
                                h.release({300, 300}, button);
                            },
                            true});
    for (StoreList *list : house.form.findChildren<StoreList *>())
        ways.push_back({"list", [list](TestHouse &) { emit list->rowClicked(0); }, true});
    for (QAction *action : house.form.findChildren<QAction *>())
        if (!action->objectName().isEmpty())
            ways.push_back({"list menu", [action](TestHouse &) { action->trigger(); }, true});
    ways.push_back({"enter", [](TestHouse &h) { emit h.controls.Dropper1->EnterPress(); }, true});
    ways.push_back(
        {"resize", [](TestHouse &h) { h.form.resize(h.form.width() + 1, h.form.height()); }, true});
    ways.push_back({"activation",
                    [](TestHouse &h) {
                        QEvent event(QEvent::ActivationChange);
                        QCoreApplication::sendEvent(&h.form, &event);
                    },
                    true});
    ways.push_back({"tip", [](TestHouse &h) { h.r.tips.TipTimer_Tick(); }, true});
    return ways;
}

/// A board on which each work has enough to do, with backup and undo, and words to retype.
struct BusyHouse : TestHouse
{
    BusyHouse()
        : TestHouse(7, {1000, 720})
    {
        t.options.setBox(Setting::ConfirmBeforeErase, 0);
        t.options.setText(Setting::MaxTriesToPlace, u"0"_s);
        t.options.setText(Setting::NumReTypeWords, u"3"_s);
        t.options.setText(Setting::NumPseudoReTypeWords, u"60"_s);
        t.options.setText(Setting::NumAffixToFill, u"1"_s);
        t.store.SaveSetting(u"Settings"_s, u"UseBackup"_s, u"1"_s);
        r.placement.takeTryLimit();
        controls.Text1->setText(u"40"_s);
        t.boxes.willBeRead();
        t.mayLeaveAnswers = true;
        for (int i = 0; i < 40; ++i)
            lay(tileKinds[static_cast<std::size_t>(i % 3)], 100 + 70 * (i % 12), 100 + 40 * (i / 12),
                u"text%1"_s.arg(i));
        QStringList words; // prefix, Wortel, suffix, as the tiles lie there
        for (int i = 1; i < 40; i += 3)
            for (int j = 0; j < 40; j += 3)
                words << u"text%1text%2text2"_s.arg(i).arg(j);
        lists.LexiconList.addAll(words);
        lists.CorrectWordList.addAll(words);
        r.news.open();
        form.show();
        QTest::qWait(0);
        settle();
        t.boxes.asked.clear();
        QObject::connect(&r.news, &BoardNews::committed, &form, [this] { ++commits; });
    }

    int commits = 0;

    QStringList sortedTexts() const
    {
        QStringList all = texts();
        all.sort();
        return all;
    }
    QByteArray backup() const
    {
        const QString path = Backup::file(t.ground);
        return IsTextFile(path) ? ReadWholeFile(path) : QByteArray();
    }
    bool backupIsBoard()
    {
        const QByteArray kept = backup();
        r.backup.SaveMyObjects(t.AppFolder + u"probe.bak"_s);
        return kept == ReadWholeFile(t.AppFolder + u"probe.bak"_s);
    }
    /// The whole state that a refused way must leave as it is.
    QStringList state() const
    {
        QStringList all = described();
        all << QString::number(play.RetypeActive()) << QString::number(commits)
            << QString::number(t.boxes.asked.size()) << QString::number(t.fileDialogs.asked.size())
            << lists.CorrectWordList.rows() << lists.WortelList.rows() << QString::number(r.undo.CanUndo())
            << QString::number(menu.shown);
        return all;
    }
};

} // namespace

/// One work at a time: whatever a hand presses while one lets it in, the board is whole, before and after.
class OneWorkTest : public QObject
{
    Q_OBJECT

private slots:
    void nothingPlaysIntoAWork_data()
    {
        QTest::addColumn<std::size_t>("index");
        for (std::size_t i = 0; i < works.size(); ++i)
            QTest::newRow(works[i].name) << i;
    }
    void nothingPlaysIntoAWork()
    {
        QFETCH(std::size_t, index);
        const NamedAct &work = works[index];
        std::size_t next = 0;
        std::size_t count = 1;
        int served = 0;
        for (int round = 0; next < count && round < (work.isShort ? 1 : 12); ++round) {
            BusyHouse house;
            const std::vector<NamedAct> ways = waysToPlay(house);
            count = ways.size();
            const QStringList before = house.sortedTexts();
            house.t.pump.waiting = true;
            house.t.pump.onServe = [&] {
                ++served;
                if (next >= count)
                    return;
                const QStringList was = house.state();
                const NamedAct &way = ways[next++];
                way.act(house);
                if (house.state() != was)
                    QTest::qFail(
                        qPrintable(u"way %1 (%2) came in"_s.arg(next - 1).arg(QLatin1String(way.name))),
                        __FILE__, __LINE__);
            };
            work.act(house);
            house.t.pump.onServe = nullptr;
            house.settle();
            QCOMPARE(house.trouble(), QString());
            if (work.keepsTexts)
                QCOMPARE(house.sortedTexts(), before);
            if (!house.play.RetypeActive()) {
                QVERIFY2(house.backupIsBoard(), "the backup is not the board");
                QCOMPARE(house.commits, 1);
                house.run(From::Key, 9);
                QCOMPARE(house.sortedTexts(), before);
                QVERIFY2(house.backupIsBoard(), "the backup after undo is not the board");
            }
        }
        QVERIFY(served > 0);
        QVERIFY2(work.isShort || next == count, "the work was too short for all ways");
    }

    void whatComesFromOutsideWaits_data() { nothingPlaysIntoAWork_data(); }
    void whatComesFromOutsideWaits()
    {
        QFETCH(std::size_t, index);
        BusyHouse house;
        const auto session = [&house](const QString &name, const QString &text) {
            return house.t.writeFile(name,
                                     u"[Morpheme1]\r\nType=Wortel\r\nLeft=50\r\nTop=60\r\nCaption=\"%1\"\r\n"
                                     "[NumObjects]\r\nObjCounter=1\r\n"_s.arg(text));
        };
        const QString first = session(u"eins.wlx"_s, u"eins"_s);
        const QString second = session(u"zwei.wlx"_s, u"zwei"_s);
        QStringList opened;
        QObject::connect(&house.r.news, &BoardNews::committed, &house.form,
                         [&] { opened << house.texts().join(u','); });
        house.t.pump.waiting = true;
        bool told = false;
        qsizetype asked = 0;
        house.t.pump.onServe = [&] {
            if (std::exchange(told, true))
                return;
            asked = house.t.boxes.asked.size();
            house.form.HiddenText_Change(first);
            house.form.HiddenText_Change(second);
            QMimeData picture;
            picture.setUrls({QUrl::fromLocalFile(u"/nirgends/bild.txt"_s)});
            QDragEnterEvent enter({9, 9}, Qt::CopyAction | Qt::MoveAction, &picture, Qt::LeftButton,
                                  Qt::NoModifier);
            QCoreApplication::sendEvent(&house.form, &enter);
            QCOMPARE(enter.dropAction(), Qt::CopyAction);
            QDropEvent drop(QPointF(9, 9), Qt::MoveAction, &picture, Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(&house.form, &drop);
            QVERIFY(!drop.isAccepted());
        };
        house.t.boxes.willAnswer(Boxes::Answer::Ok);
        works[index].act(house);
        QVERIFY(told);
        QVERIFY(!opened.contains(u"eins"_s) && house.t.boxes.asked.size() == asked);
        house.t.pump.onServe = nullptr;
        house.settle();
        QCOMPARE(opened.mid(opened.size() - 2), (QStringList{u"eins"_s, u"zwei"_s}));
        QCOMPARE(house.texts(), QStringList{u"zwei"_s});
        QCOMPARE(house.t.boxes.asked.size(), asked + 1); // of the drop, which is no picture
        house.run(From::Key, 9);
        QCOMPARE(house.texts(), QStringList{u"eins"_s});
    }

    void closingWaitsForTheStack_data()
    {
        QTest::addColumn<std::size_t>("index");
        QTest::addColumn<int>("yield");
        for (std::size_t i = 0; i < works.size(); ++i)
            for (const int yield : {1, 2, 3, 7, 20})
                QTest::addRow("%s, yield %d", works[i].name, yield) << i << yield;
    }
    void closingWaitsForTheStack()
    {
        QFETCH(std::size_t, index);
        QFETCH(int, yield);
        BusyHouse house;
        house.r.news.open();
        QVERIFY(!house.backup().isEmpty());
        int ended = 0;
        int commits = -1;
        qsizetype asked = 0;
        QStringList board;
        QObject::connect(&house.form, &frmMain::unloaded, &house.form, [&] { ++ended; });
        house.t.pump.waiting = true;
        house.t.pump.onYield = [&, seen = 0]() mutable {
            if (++seen != yield)
                return;
            board = house.described();
            commits = house.commits;
            asked = house.t.boxes.asked.size();
            QVERIFY(!house.form.close());
            house.form.close(); // the second request is none
        };
        works[index].act(house);
        if (commits < 0)
            return; // the work has fewer yields
        QCOMPARE(ended, 0);
        QCOMPARE(house.described(), board);
        QCOMPARE(house.commits, commits);
        house.t.pump.onYield = nullptr;
        house.settle();
        QCOMPARE(ended, 1);
        QVERIFY(house.form.isHidden());
        QVERIFY2(house.backup().isEmpty(), "a clean end leaves no backup");
        QCOMPARE(house.t.boxes.asked.size(), asked);
        QCOMPARE(QGuiApplication::overrideCursor(), nullptr);
    }

    /// A close request answers the box that is open as Esc would; then nothing of the command is done.
    void aBoxIsAnsweredWithNo_data()
    {
        QTest::addColumn<int>("id");
        for (const int id : {103, 104, 204, 234, 240, 241, 303, 304, 1503})
            QTest::addRow("%d", id) << id;
    }
    void aBoxIsAnsweredWithNo()
    {
        QFETCH(int, id);
        BusyHouse house;
        house.t.options.setBox(Setting::ConfirmBeforeErase, 1);
        house.t.boxes.willPress(0);
        house.t.boxes.willType(u"neu"_s);
        bool asked = false;
        house.t.boxes.whileOpen = [&](const Question &) {
            asked = true;
            house.form.close();
        };
        const QStringList board = house.described();
        house.run(From::MainMenu, id);
        QVERIFY(asked);
        QCOMPARE(house.described(), board);
        QCOMPARE(house.commits, 0);
        house.settle();
        QVERIFY(house.form.isHidden());
        QVERIFY(house.backup().isEmpty());
    }

    /// Everything that stops a work leaves what was laid, and a step that brings the rest back.
    void aStoppedWorkIsAStep_data()
    {
        QTest::addColumn<bool>("byKey");
        QTest::newRow("X") << false;
        QTest::newRow("Esc") << true;
    }
    void aStoppedWorkIsAStep()
    {
        QFETCH(bool, byKey);
        BusyHouse house;
        const QStringList before = house.sortedTexts();
        house.t.pump.waiting = true;
        house.t.pump.onServe = [&, seen = 0]() mutable {
            if (++seen != 5)
                return;
            QVERIFY(house.controls.Label4->isVisible());
            byKey ? key(house, Qt::Key_Escape) : mouse(house.controls.Label4, Qt::LeftButton);
        };
        house.run(From::MainMenu, 1505);
        house.t.pump.onServe = nullptr;
        QVERIFY(house.r.store.count() > 0 && house.r.store.count() < before.size());
        QCOMPARE(house.trouble(), QString());
        QVERIFY(house.backupIsBoard());
        house.run(From::Key, 9);
        QCOMPARE(house.sortedTexts(), before);
    }

    /// A session that comes while a tile is in the hand finds the hand empty.
    void aSessionFindsNoTileHeld()
    {
        BusyHouse house;
        const QString path = house.t.writeFile(u"leer.wlx"_s, u"[NumObjects]\r\nObjCounter=0\r\n"_s);
        house.press({105, 110});
        house.drag({300, 300});
        QVERIFY(house.r.pointer.isHolding());
        house.form.HiddenText_Change(path);
        house.settle();
        QCOMPARE(house.trouble(), QString());
        house.release({300, 300});
        QVERIFY(house.r.store.isEmpty());
    }
};

WORTEL_TEST(OneWorkTest)
#include "tst_one_work.moc"
