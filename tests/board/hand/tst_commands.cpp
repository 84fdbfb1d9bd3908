// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/files.h"
#include "support/columns.h"
#include "support/registry.h"
#include "support/test_hand.h"

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
    void menusTableAndRoomsAgree()
    {
        TestHand hand;
        QMap<From, QSet<int>> rows;
        QList<int> later; // of games and printing
        for (const command::Command &row : command::table()) {
            QVERIFY(!rows[row.from].contains(row.id));
            rows[row.from].insert(row.id);
            if (!hand.r.router.hasHandler(row.from, row.id))
                later.append(row.id);
        }
        QSet<int> ofTiles;
        for (const MenuName name : {MenuName::PrefixMenu, MenuName::WortelMenu, MenuName::SuffixMenu})
            collectIds(hand.menus.Restore(name), ofTiles);
        QSet<int> ofMain;
        collectIds(hand.menus.Restore(MenuName::MainMenu), ofMain);
        QCOMPARE(rows[From::TileMenu], ofTiles);
        QCOMPARE(rows[From::MainMenu], ofMain);
        QCOMPARE(rows[From::Key], (QSet<int>{1, 2, 4, 5, 6, 8, 9, 10}));
        QCOMPARE(rows[From::Pointer], (QSet<int>{103, 204, 303}));
        std::sort(later.begin(), later.end());
        QCOMPARE(later, (QList<int>{150,  250,  350,  504,  701,  1602, 1603, 1604, 1605, 1606,
                                    1701, 1702, 1703, 1904, 1905, 1907, 2900, 2901, 2902, 2903,
                                    2904, 2905, 2906, 2907, 3104, 3105, 3106, 3107}));
    }

    /// On an empty board a command that needs tiles says so and does nothing else.
    void emptyBoard()
    {
        for (const command::Command &command : command::table()) {
            QCOMPARE(command.missing != nullptr, command.needs != Needs::Nothing);
            QCOMPARE(command.question != nullptr, command.asks != Asks::Nothing);
            if (command.needs == Needs::Nothing)
                continue;
            TestHand hand;
            hand.t.boxes.willBeRead();
            hand.run(command.from, command.id);
            QVERIFY(hand.t.ok());
            const Question &told = hand.t.boxes.asked.first();
            QCOMPARE(told.text, QString::fromUtf16(command.missing));
            QCOMPARE(told.style + told.title, u"INFOWortel-Meister"_s);
            QVERIFY(hand.commits == 0 && hand.t.sound.resources.isEmpty());
        }
    }

    void commandsOnTheBoard_data()
    {
        // counters: Wortel, prefix, suffix, all; answer: what is typed, or "-" if it is only agreed
        columns<From, int, QPoint, QString, QString, QList<int>>("from", "id", "point", "answer", "counters",
                                                                 "sounds");
        const QPoint onWortel(110, 110);
        const QPoint onPrefix(110, 210);
        const QPoint onSuffix(110, 310);
        const QPoint free(400, 400);
        const auto tile = From::TileMenu;
        const auto main = From::MainMenu;
        const auto key = From::Key;
        const QString yes = u"-"_s;
        const QString same = u"3,2,1,6"_s;
        const QList<int> none;
        QTest::newRow("edit") << tile << 104 << onWortel << u"neu"_s << same << none;
        QTest::newRow("remove prefix") << tile << 105 << onPrefix << yes << u"3,1,1,5"_s << none;
        QTest::newRow("remove suffix") << tile << 105 << onSuffix << yes << u"3,2,0,5"_s << none;
        QTest::newRow("capitals") << tile << 106 << onPrefix << u""_s << same << none;
        QTest::newRow("one copy") << tile << 116 << onPrefix << u""_s << u"3,3,1,7"_s << none;
        QTest::newRow("ten copies") << tile << 121 << onSuffix << u""_s << u"3,2,11,16"_s << none;

        QTest::newRow("insert Wortel") << main << 204 << free << u"neu"_s << u"4,2,1,7"_s << QList<int>{123};
        QTest::newRow("add 1") << main << 216 << free << u""_s << u"4,2,1,7"_s << QList<int>{120};
        QTest::newRow("all Wortel gone") << main << 234 << free << yes << u"0,2,1,3"_s << QList<int>{122};
        QTest::newRow("all prefixes gone") << main << 104 << free << yes << u"3,0,1,4"_s << QList<int>{122};
        QTest::newRow("all suffixes gone") << main << 304 << free << yes << u"3,2,0,5"_s << QList<int>{122};
        QTest::newRow("capital prefixes") << main << 105 << free << u""_s << same << none;
        QTest::newRow("shuffle Wortel") << main << 236 << free << u""_s << same << QList<int>{109};
        QTest::newRow("replace") << main << 240 << free << yes << same << QList<int>{109};
        QTest::newRow("spread Wortel") << main << 241 << free << yes << same << none;
        QTest::newRow("line up") << main << 260 << free << u""_s << same << QList<int>{109};
        QTest::newRow("everything gone") << main << 1503 << free << yes << u"0,0,0,0"_s << QList<int>{122};
        QTest::newRow("shuffle all") << main << 1504 << free << u""_s << same << QList<int>{109};
        QTest::newRow("spread all") << main << 1505 << free << u""_s << same << none;

        QTest::newRow("Ctrl+A") << key << 1 << free << u""_s << u"4,2,1,7"_s << none;
        QTest::newRow("Ctrl+B") << key << 2 << free << u""_s << same << none;
        QTest::newRow("Ctrl+D") << key << 4 << free << yes << same << none;
        QTest::newRow("Ctrl+E") << key << 5 << free << yes << same << QList<int>{109};
        QTest::newRow("Ctrl+F") << key << 6 << free << u""_s << same << QList<int>{109};
    }
    /// Every command that changes tiles is one step for undo, and the counters follow.
    void commandsOnTheBoard()
    {
        QFETCH(From, from);
        QFETCH(int, id);
        QFETCH(QPoint, point);
        QFETCH(QString, answer);
        TestHand hand;
        layBoard(hand);
        if (answer == u"-"_s)
            hand.t.boxes.willPress(0);
        else if (!answer.isEmpty())
            hand.t.boxes.willType(answer);
        hand.run(from, id, point);
        QVERIFY(hand.t.ok());
        QTEST(hand.counters().join(u','), "counters");
        QCOMPARE(hand.trouble(), QString());
        QCOMPARE(hand.commits, 1);
        QTEST(hand.t.sound.resources, "sounds");
        if (from == From::TileMenu)
            return;
        hand.run(From::Key, 9);
        QCOMPARE(hand.counters().join(u','), u"0,0,0,0"_s); // the ring began with the empty board
    }

    void questions_data()
    {
        // y: of the press; saved: by the setting
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
        QCOMPARE(hand.trouble(), QString());
        QVERIFY(hand.commits == 0 && hand.t.sound.resources.isEmpty());
        if (!saved)
            return;
        hand.t.options.setBox(Setting::ConfirmBeforeErase, 0);
        hand.t.options.setBox(Setting::SoundOnActions, 0);
        hand.run(from, id, {110, y});
        QVERIFY(hand.t.ok());
        QVERIFY(hand.store->count() < before.size());
        QVERIFY(hand.commits == 1 && hand.t.sound.resources.isEmpty());
    }

    void presetNumber()
    {
        // told: what the notice says
        for (const auto &[text, told, copies, added] : {std::tuple{u"3"_s, u""_s, 3, 3},
                                                        {u"2.5"_s, u""_s, 2, 2},
                                                        {u"-5"_s, u""_s, 0, 5},
                                                        {u""_s, u"eine Zahl"_s, 0, 0},
                                                        {u"abc"_s, u"eine Zahl"_s, 0, 0},
                                                        {u"99999"_s, u"32767"_s, 0, 0}}) {
            TestHand hand;
            layBoard(hand);
            hand.controls.Text1->setText(text);
            for (int notices = told.isEmpty() ? 0 : 3; notices > 0; --notices)
                hand.t.boxes.willBeRead();
            hand.run(From::TileMenu, 123, {110, 210});
            QCOMPARE(hand.optTypes->value(1), 2 + copies);
            hand.run(From::MainMenu, 223);
            QCOMPARE(hand.optTypes->value(0), 3 + added);
            hand.run(From::MainMenu, 213);
            QVERIFY(hand.t.ok());
            QCOMPARE(hand.commits, told.isEmpty() ? 3 : 0);
            if (told.isEmpty())
                continue;
            QCOMPARE(hand.store->count(), 6); // what is no number must not empty the board
            QVERIFY(hand.t.boxes.asked.first().text.contains(told));
        }
    }

    void gamesAndScoresWaitForTheEndOfAGame()
    {
        TestHand hand;
        hand.play.startGame(PlayState::Phase::Playing, Vowels::None);
        for (const int id :
             {1600, 1601, 1607, 1608, 1701, 1702, 1703, 2900, 2901, 2902, 2903, 2904, 2905, 2906, 2907})
            hand.run(From::MainMenu, id);
        for (const int id : {3104, 3105, 3106, 3107})
            hand.run(From::MainMenu, id);
        QVERIFY(hand.t.boxes.asked.isEmpty());
        hand.play.stop();
        hand.t.boxes.willBeRead();
        hand.optTypes->select(1);
        hand.run(From::MainMenu, 2900);
        QVERIFY(hand.t.ok()); // it comes later
        QCOMPARE(hand.optTypes->selected(), 3);
    }

    /// A tile that the filter hides lies first in the store: the shown one is meant, and no other is laid.
    void hiddenTileUnderThePointer()
    {
        for (const auto &[id, left] : {std::pair{105, u"fahr"_s},
                                       {104, u"fahr zer"_s},
                                       {106, u"fahr Ver"_s},
                                       {116, u"fahr ver ver"_s},
                                       {204, u"fahr ver"_s}}) {
            TestHand hand;
            hand.lay(wortel, 100, 100, u"fahr"_s);
            hand.lay(prefix, 105, 105, u"ver"_s);
            hand.optTypes->select(1);
            if (id == 104)
                hand.t.boxes.willType(u"zer"_s);
            if (id == 105)
                hand.t.boxes.willPress(0);
            hand.run(id == 204 ? From::MainMenu : From::TileMenu, id, {115, 115});
            QCOMPARE(hand.texts().join(u' '), left);
            QVERIFY(hand.t.ok());
            QCOMPARE(hand.trouble(), QString());
        }
    }

    void faultsNameTheItem()
    {
        TestHand hand;
        const QString file = hand.t.AppFolder + u"errors.log"_s;
        hand.t.log.enable(file);
        hand.r.router.otherwise([](const command::Command &, const Press &) -> Ending {
            throw RuntimeError::of(RuntimeError::Overflow);
        });
        hand.optTypes->select(1);
        hand.r.router.run(From::MainMenu, 2900, hand.r.router.pressAt({300, 300}), 30);
        const QString log = QString::fromLatin1(ReadWholeFile(file));
        for (const QString &words :
             {u"Event: In procedure picCanvas_MouseDown of Form frmMain Main-menu: Bestenliste Zeigen"_s,
              u"Error 6 "_s, u" in procedure picCanvas_MouseDown of Form frmMain. Index: 30"_s})
            QVERIFY2(log.contains(words), qPrintable(log));
        QCOMPARE(hand.optTypes->selected(), 3); // the rest of the command is done
    }
};

WORTEL_TEST(CommandsTest)
#include "tst_commands.moc"
