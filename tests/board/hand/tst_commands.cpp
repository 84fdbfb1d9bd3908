// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/hand/commands.h"
#include "board/hand/menu_model.h"
#include "platform/files.h"
#include "support/columns.h"
#include "support/registry.h"
#include "support/test_hand.h"

#include <QSet>
#include <QtTest>

using namespace Qt::StringLiterals;
using command::Asks;
using command::From;
using command::Needs;

namespace {

void collectIds(const std::vector<MenuItem> &items, QSet<int> &ids)
{
    for (const MenuItem &item : items) {
        if (item.id != 0)
            ids.insert(item.id);
        collectIds(item.children, ids);
    }
}

QSet<int> tableIds(From from)
{
    QSet<int> ids;
    for (const command::Command &row : command::table())
        if (row.from == from)
            ids.insert(row.id);
    return ids;
}

/// Two prefixes, three Wortel tiles and one suffix, none over another.
void layBoard(TestHand &hand)
{
    hand.lay(wortel, 100, 100, u"fahr"_s);
    hand.lay(wortel, 200, 100, u"Spiel"_s);
    hand.lay(wortel, 300, 100, u"halt"_s);
    hand.lay(prefix, 100, 200, u"ver"_s);
    hand.lay(prefix, 200, 200, u"be"_s);
    hand.lay(suffix, 100, 300, u"ung"_s);
}

} // namespace

class CommandsTest : public QObject
{
    Q_OBJECT

private slots:
    void menusAndTableAgree()
    {
        QSet<int> ofTiles;
        for (const MenuName name : {MenuName::PrefixMenu, MenuName::WortelMenu, MenuName::SuffixMenu})
            collectIds(buildMenu(name, {}), ofTiles);
        QSet<int> ofMain;
        collectIds(buildMenu(MenuName::MainMenu, {}), ofMain);
        QCOMPARE(tableIds(From::TileMenu), ofTiles);
        QCOMPARE(tableIds(From::MainMenu), ofMain);
        QCOMPARE(tableIds(From::Key), (QSet<int>{1, 2, 4, 5, 6, 8, 9, 10}));
    }

    /// On an empty board a command that needs tiles says so and does nothing else.
    void emptyBoard()
    {
        for (const command::Command &command : command::table()) {
            QCOMPARE(command.missing != nullptr, command.needs != Needs::Nothing);
            QCOMPARE(command.question != nullptr, command.asks != Asks::Nothing);
            QCOMPARE(command::find(command.from, command.id), &command);
            if (command.needs == Needs::Nothing)
                continue;
            TestHand hand;
            hand.t.boxes.willBeRead();
            hand.run(command.from, command.id);
            QVERIFY(hand.t.ok());
            const Question &told = hand.t.boxes.asked.first();
            QCOMPARE(told.text, QString::fromUtf16(command.missing));
            QCOMPARE(told.style + told.title, u"INFOWortel-Meister"_s);
            QVERIFY(hand.commits + hand.backups == 0 && hand.t.sound.resources.isEmpty());
        }
    }

    void commandsOnTheBoard_data()
    {
        // counters: Wortel, prefix, suffix, all
        columns<From, int, QPoint, QString, int, QList<int>>("from", "id", "point", "counters", "commits",
                                                             "sounds");

        const QPoint onWortel(110, 110);
        const QPoint onPrefix(110, 210);
        const QPoint onSuffix(110, 310);
        const QPoint free(400, 400);
        const auto tile = From::TileMenu;
        const auto main = From::MainMenu;
        const QList<int> none;
        QTest::newRow("edit") << tile << 104 << onWortel << u"3,2,1,6"_s << 1 << none;
        QTest::newRow("remove prefix") << tile << 105 << onPrefix << u"3,1,1,5"_s << 1 << none;
        QTest::newRow("remove suffix") << tile << 105 << onSuffix << u"3,2,0,5"_s << 1 << none;
        QTest::newRow("capitals") << tile << 106 << onPrefix << u"3,2,1,6"_s << 1 << none;
        QTest::newRow("one copy") << tile << 116 << onPrefix << u"3,3,1,6"_s << 1 << none;
        QTest::newRow("ten copies") << tile << 121 << onSuffix << u"3,2,11,6"_s << 1 << none;
        QTest::newRow("on nothing") << tile << 116 << free << u"3,2,1,6"_s << 0 << none;

        QTest::newRow("insert Wortel") << main << 204 << free << u"4,2,1,7"_s << 1 << QList<int>{123};
        QTest::newRow("add 1") << main << 216 << free << u"4,2,1,6"_s << 1 << QList<int>{120};
        QTest::newRow("all Wortel gone") << main << 234 << free << u"0,2,1,3"_s << 1 << QList<int>{122};
        QTest::newRow("all prefixes gone") << main << 104 << free << u"3,0,1,4"_s << 1 << QList<int>{122};
        QTest::newRow("all suffixes gone") << main << 304 << free << u"3,2,0,5"_s << 1 << QList<int>{122};
        QTest::newRow("capital prefixes") << main << 105 << free << u"3,2,1,6"_s << 1 << none;
        QTest::newRow("shuffle Wortel") << main << 236 << free << u"3,2,1,6"_s << 1 << QList<int>{109};
        QTest::newRow("replace") << main << 240 << free << u"3,2,1,6"_s << 0 << QList<int>{109};
        QTest::newRow("spread Wortel") << main << 241 << free << u"3,2,1,6"_s << 1 << none;
        QTest::newRow("line up") << main << 260 << free << u"3,2,1,6"_s << 1 << QList<int>{109};
        QTest::newRow("everything gone") << main << 1503 << free << u"0,0,0,0"_s << 1 << QList<int>{122};
        QTest::newRow("shuffle all") << main << 1504 << free << u"3,2,1,6"_s << 0 << QList<int>{109};
        QTest::newRow("spread all") << main << 1505 << free << u"3,2,1,6"_s << 1 << none;

        QTest::newRow("Ctrl+A") << From::Key << 1 << free << u"4,2,1,7"_s << 1 << none;
        QTest::newRow("Ctrl+B") << From::Key << 2 << free << u"3,2,1,6"_s << 0 << none;
        QTest::newRow("Ctrl+D") << From::Key << 4 << free << u"3,2,1,6"_s << 0 << none;
        QTest::newRow("Ctrl+E") << From::Key << 5 << free << u"3,2,1,6"_s << 0 << QList<int>{109};
        QTest::newRow("Ctrl+F") << From::Key << 6 << free << u"3,2,1,6"_s << 1 << QList<int>{109};
    }
    void commandsOnTheBoard()
    {
        QFETCH(From, from);
        QFETCH(int, id);
        QFETCH(QPoint, point);
        QFETCH(QString, counters);
        TestHand hand;
        layBoard(hand);
        hand.controls.Text1->setText(u"-7"_s);
        const command::Command &command = *command::find(from, id);
        if (command.asks != Asks::Nothing || command.does == command::Does::RemoveTile)
            hand.t.boxes.willPress(0);
        if (command.does == command::Does::EditTile || command.does == command::Does::Insert)
            hand.t.boxes.willType(u"neu"_s);
        hand.run(from, id, point);
        QVERIFY(hand.t.ok());
        // The total follows at the next redraw, which a copy does not ask for.
        QCOMPARE(hand.counters().join(u','), counters);
        for (const TileKind &kind : tileKinds)
            QCOMPARE(hand.store->countOf(kind.back), hand.optTypes->value(kind.filterIndex));
        QTEST(hand.commits, "commits");
        QTEST(hand.t.sound.resources, "sounds");
    }

    void questions_data()
    {
        // y: of the press
        // saved: by the setting
        columns<From, int, int, QString, QString, bool>("from", "id", "y", "title", "style", "saved");
        const auto tile = From::TileMenu;
        const auto main = From::MainMenu;
        const QString remove = u"Entfernen"_s;
        const QString confirm = u"Bestätigen"_s;
        QTest::newRow("prefix") << tile << 105 << 210 << remove << u"PREFIX"_s << true;
        QTest::newRow("Wortel") << tile << 105 << 110 << remove << u"WORTEL"_s << true;
        QTest::newRow("suffix") << tile << 105 << 310 << remove << u"SUFFIX"_s << true;
        QTest::newRow("all prefixes") << main << 104 << 0 << remove << u"PREFIX"_s << true;
        QTest::newRow("all Wortel") << main << 234 << 0 << remove << u"WORTEL"_s << true;
        QTest::newRow("all suffixes") << main << 304 << 0 << remove << u"SUFFIX"_s << true;
        QTest::newRow("everything") << main << 1503 << 0 << confirm << u"CONFIRM"_s << true;
        QTest::newRow("replace") << main << 240 << 0 << confirm << u"CONFIRM"_s << false;
        QTest::newRow("spread") << main << 241 << 0 << confirm << u"CONFIRM"_s << false;
        QTest::newRow("Ctrl+E") << From::Key << 5 << 0 << confirm << u"CONFIRM"_s << false;
        QTest::newRow("edit") << tile << 104 << 110 << u"Wortel: Bearbeiten"_s << QString() << false;
        QTest::newRow("insert") << main << 103 << 400 << u"Präfix: Einfügen"_s << QString() << false;
    }
    /// A refusal and an empty entry leave the board alone; a question that the setting saves is a Yes.
    void questions()
    {
        QFETCH(From, from);
        QFETCH(int, id);
        QFETCH(int, y);
        QFETCH(QString, style);
        QFETCH(bool, saved);
        TestHand hand;
        layBoard(hand);
        const QStringList before = hand.described();
        if (style.isEmpty())
            hand.t.boxes.willType({});
        else
            hand.t.boxes.willPress(1);
        hand.run(from, id, {110, y});
        QVERIFY(hand.t.ok());
        QTEST(hand.t.boxes.asked.first().title, "title");
        if (!style.isEmpty()) {
            QCOMPARE(hand.t.boxes.asked.first().style, style);
            QCOMPARE(hand.t.boxes.asked.first().code, 3);
        }
        QCOMPARE(hand.described(), before);
        QVERIFY(hand.countersEqualTiles());
        QVERIFY(hand.commits + hand.backups == 0 && hand.t.sound.resources.isEmpty());
        if (!saved)
            return;
        hand.t.options.setBox(Setting::ConfirmBeforeErase, 0);
        hand.t.options.setBox(Setting::SoundOnActions, 0);
        hand.run(from, id, {110, y});
        QVERIFY(hand.t.ok());
        QVERIFY(hand.store->count() < before.size());
        QVERIFY(hand.commits == 1 && hand.t.sound.resources.isEmpty());
    }

    void presetNumber_data()
    {
        // told: a notice asks for a number, or for a smaller one
        columns<QString, bool, int, int>("text", "told", "copies", "added");
        QTest::newRow("number") << u"3"_s << false << 3 << 3;
        QTest::newRow("rounded to even") << u"2.5"_s << false << 2 << 2;
        QTest::newRow("negative") << u"-5"_s << false << 0 << 5;
        QTest::newRow("empty") << u""_s << true << 0 << 0;
        QTest::newRow("letters") << u"abc"_s << true << 0 << 0;
        QTest::newRow("too large") << u"99999"_s << true << 0 << 0;
    }
    void presetNumber()
    {
        QFETCH(QString, text);
        QFETCH(bool, told);
        TestHand hand;
        layBoard(hand);
        hand.controls.Text1->setText(text);
        for (int notices = told ? 3 : 0; notices > 0; --notices)
            hand.t.boxes.willBeRead();
        hand.run(From::TileMenu, 123, {110, 210});
        QTEST(hand.optTypes->value(1) - 2, "copies");
        hand.run(From::MainMenu, 223);
        QTEST(hand.optTypes->value(0) - 3, "added");
        hand.run(From::MainMenu, 213);
        QVERIFY(!told || hand.store->count() == 6); // what is no number must not empty the board
        QVERIFY(hand.t.ok());
    }

    void gamesAndScoresWaitForTheEndOfAGame()
    {
        TestHand hand;
        hand.modes.GameActive = true;
        for (const int id :
             {1701, 1702, 1703, 2900, 2901, 2902, 2903, 2904, 2905, 2906, 2907, 3104, 3105, 3106, 3107})
            hand.run(From::MainMenu, id);
        QVERIFY(hand.chosen.isEmpty());
        hand.run(From::MainMenu, 701);
        QCOMPARE(hand.chosen, QList<int>{701});
    }

    void undoKeysNeedAStep()
    {
        TestHand hand;
        QVERIFY(hand.commands.runKey(9));
        QVERIFY(hand.commands.runKey(10));
        QVERIFY(hand.chosen.isEmpty());
        hand.modes.CanUndo = true;
        hand.commands.runKey(9);
        hand.modes.CanRedo = true;
        hand.commands.runKey(10);
        QCOMPARE(hand.chosen, (QList<int>{2801, 2802}));
        QVERIFY(!hand.commands.runKey(3));
    }

    void filterComesBack()
    {
        TestHand hand;
        hand.optTypes->select(1);
        hand.t.boxes.willType(u"ent"_s);
        hand.run(From::MainMenu, 103);
        QCOMPARE(hand.optTypes->selected(), 1);
        hand.run(From::MainMenu, 1003);
        QCOMPARE(hand.optTypes->selected(), 3);
    }

    /// A tile that the filter hides lies first in the store: the shown one is meant.
    void hiddenTileUnderThePointer_data()
    {
        columns<int, QStringList>("id", "left");
        QTest::newRow("remove") << 105 << QStringList{u"fahr"_s};
        QTest::newRow("edit") << 104 << QStringList{u"fahr"_s, u"zer"_s};
        QTest::newRow("capitals") << 106 << QStringList{u"fahr"_s, u"Ver"_s};
        QTest::newRow("copy") << 116 << QStringList{u"fahr"_s, u"ver"_s, u"ver"_s};
    }
    void hiddenTileUnderThePointer()
    {
        QFETCH(int, id);
        TestHand hand;
        hand.lay(wortel, 100, 100, u"fahr"_s);
        hand.lay(prefix, 105, 105, u"ver"_s);
        hand.optTypes->select(1);
        if (id == 104)
            hand.t.boxes.willType(u"zer"_s);
        if (id == 105)
            hand.t.boxes.willPress(0);
        hand.run(From::TileMenu, id, {115, 115});
        QTEST(hand.texts(), "left");
        for (const TileKind &kind : tileKinds)
            QCOMPARE(hand.store->countOf(kind.back), hand.optTypes->value(kind.filterIndex));
    }

    void faultsNameTheItem()
    {
        TestHand hand;
        const QString file = hand.t.AppFolder + u"errors.log"_s;
        hand.t.log.enable(file);
        hand.t.boxes.willType(u"weit"_s);
        hand.commands.run(From::MainMenu, 103, hand.commands.pressAt({32760, 10}), 30);
        const QString log = QString::fromLatin1(ReadWholeFile(file));
        QVERIFY2(log.contains(
                     u"Event: In procedure picCanvas_MouseDown of Form frmMain Main-menu: Neues Präfix"_s),
                 qPrintable(log));
        QVERIFY2(log.contains(u"Error 6 "_s), qPrintable(log));
        QVERIFY2(log.contains(u" in procedure picCanvas_MouseDown of Form frmMain. Index: 30"_s),
                 qPrintable(log));
        QVERIFY(hand.countersEqualTiles());
        QCOMPARE(hand.commits, 1);
    }
};

WORTEL_TEST(CommandsTest)
#include "tst_commands.moc"
