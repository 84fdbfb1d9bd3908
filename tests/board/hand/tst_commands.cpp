// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/test_class.h"
#include "support/test_hand.h"

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
        QList<int> later; // of games
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
        QCOMPARE(rows[From::Key], (QSet<int>{1, 2, 4, 5, 6, 8, 9, 10, 15, 19, 25, 26}));
        QCOMPARE(rows[From::Pointer], (QSet<int>{103, 204, 303}));
        std::sort(later.begin(), later.end());
        QCOMPARE(later, (QList<int>{1602, 1603, 1604, 1605, 1606}));
    }

    /// On an empty board a command that needs tiles says so and does nothing else.
    void emptyBoard()
    {
        for (const command::Command &command : command::table()) {
            if (command.needs == Needs::Nothing)
                continue;
            TestHand hand;
            hand.t.boxes.willBeRead();
            hand.run(command.from, command.id);
            const Question &told = hand.t.boxes.asked.first();
            QCOMPARE(told.text, QString::fromUtf16(command.missing));
            QCOMPARE(told.style + told.title, u"INFOWortel-Meister"_s);
            QVERIFY(hand.commits == 0 && hand.t.sound.resources.isEmpty());
        }
    }

    void commandsOnTheBoard_data()
    {
        // counters: Wortel, prefix, suffix; answer: what is typed, or "-" if it is only agreed
        columns<From, int, QPoint, QString, QString, int>("from", "id", "point", "answer", "counters",
                                                          "sound");
        const QPoint onPrefix(110, 210);
        const QPoint onSuffix(110, 310);
        const QPoint free(400, 400);
        const auto tile = From::TileMenu;
        const auto main = From::MainMenu;
        const QString yes = u"-"_s;
        QTest::newRow("remove prefix") << tile << 105 << onPrefix << yes << u"3,1,1"_s << 0;
        QTest::newRow("one copy") << tile << 116 << onPrefix << u""_s << u"3,3,1"_s << 0;
        QTest::newRow("ten copies") << tile << 121 << onSuffix << u""_s << u"3,2,11"_s << 0;
        QTest::newRow("insert Wortel") << main << 204 << free << u"neu"_s << u"4,2,1"_s << 123;
        QTest::newRow("add 1") << main << 216 << free << u""_s << u"4,2,1"_s << 120;
        QTest::newRow("all Wortel gone") << main << 234 << free << yes << u"0,2,1"_s << 122;
        QTest::newRow("replace") << main << 240 << free << yes << u"3,2,1"_s << 109;
        QTest::newRow("line up") << main << 260 << free << u""_s << u"3,2,1"_s << 109;
        QTest::newRow("everything gone") << main << 1503 << free << yes << u"0,0,0"_s << 122;
        QTest::newRow("Ctrl+D") << From::Key << 4 << free << yes << u"3,2,1"_s << 0;
        QTest::newRow("Ctrl+E") << From::Key << 5 << free << yes << u"3,2,1"_s << 109;
        QTest::newRow("Ctrl+F") << From::Key << 6 << free << u""_s << u"3,2,1"_s << 109;
    }
    void commandsOnTheBoard()
    {
        QFETCH(From, from);
        QFETCH(int, id);
        QFETCH(QPoint, point);
        QFETCH(QString, answer);
        QFETCH(int, sound);
        TestHand hand;
        layBoard(hand);
        if (answer == u"-"_s)
            hand.t.boxes.willPress(0);
        else if (!answer.isEmpty())
            hand.t.boxes.willType(answer);
        hand.run(from, id, point);
        QTEST(hand.counters().mid(0, 3).join(u','), "counters");
        QCOMPARE(hand.t.sound.resources, sound == 0 ? QList<int>() : QList<int>{sound});
    }

    void questions()
    {
        // y: of the press
        for (const auto &[from, id, y, titleAndStyle] :
             {std::tuple{From::TileMenu, 105, 210, u"Entfernen PREFIX"_s},
              {From::TileMenu, 105, 110, u"Entfernen WORTEL"_s},
              {From::MainMenu, 304, 0, u"Entfernen SUFFIX"_s},
              {From::MainMenu, 1503, 0, u"Bestätigen CONFIRM"_s},
              {From::MainMenu, 240, 0, u"Bestätigen CONFIRM"_s},
              {From::TileMenu, 104, 110, u"Wortel: Bearbeiten fahr"_s},
              {From::MainMenu, 103, 400, u"Präfix: Einfügen "_s}}) {
            TestHand hand;
            layBoard(hand);
            hand.t.boxes.willType({});
            hand.t.boxes.willPress(1);
            hand.t.mayLeaveAnswers = true; // one of the two
            hand.run(from, id, {110, y});
            const Question &asked = hand.t.boxes.asked.first();
            QCOMPARE(asked.title + u' ' + asked.style, titleAndStyle);
            QVERIFY(hand.t.sound.resources.isEmpty());
        }
    }

    void presetNumber()
    {
        // told: what the notice says
        for (const auto &[text, told, copies, added] : {std::tuple{u"3"_s, u""_s, 3, 3},
                                                        {u"-5"_s, u""_s, 0, 5},
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
        for (const int id : {1600, 1601, 1607, 1608, 1701, 2900, 3104})
            hand.run(From::MainMenu, id);
        QVERIFY(hand.t.boxes.asked.isEmpty());
        hand.play.stop();
        hand.t.boxes.willCloseScores();
        hand.optTypes->select(1);
        hand.run(From::MainMenu, 2900);
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
            QCOMPARE(hand.trouble(), QString());
        }
    }
};

WORTEL_TEST(CommandsTest)
#include "tst_commands.moc"
