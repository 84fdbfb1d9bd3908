// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/paarlon/bouncing_ball.h"
#include "games/paarlon/memory_rules.h"
#include "platform/word_store.h"
#include "support/columns.h"
#include "support/registry.h"
#include "support/test_ground.h"

#include <QtTest>

#include <map>
#include <numeric>

using namespace Qt::StringLiterals;
using Turn = MemoryRules::Turn;

namespace {

QStringList numbered(int count)
{
    QStringList lines;
    for (int i = 0; i < count; ++i)
        lines << u"w%1x"_s.arg(i);
    return lines;
}

/// Rules on a seeded ground, dealt.
struct Game
{
    explicit Game(quint64 seed = 1)
        : t(seed)
    {
        rules.deal(numbered(18));
        t.clock.moment = t.clock.moment.addMSecs(1);
    }

    TestGround t;
    MemoryRules rules{t.rnd, t.clock};

    /// The cards of the morpheme 1 to 18.
    std::pair<int, int> cardsOf(int morpheme) const
    {
        QList<int> found;
        for (int card = 0; card < 36; ++card)
            if (rules.CardMorpheme(card) == morpheme)
                found << card;
        Q_ASSERT(found.size() == 2);
        return {found.first(), found.last()};
    }
    Turn find(int morpheme)
    {
        const auto [one, other] = cardsOf(morpheme);
        rules.click(one);
        return rules.click(other);
    }
};

} // namespace

class MemoryRulesTest : public QObject
{
    Q_OBJECT

private slots:
    void prints_data()
    {
        columns<QString, QString, QString>("morpheme", "text", "mark");
        QTest::newRow("plain") << u"fahr"_s << u"fahr"_s << QString();
        QTest::newRow("twin") << u"XY2"_s << u"XY"_s << u"2"_s;
        QTest::newRow("ends in 0") << u"XY10"_s << u"XY10"_s << QString();
        QTest::newRow("every occurrence") << u"a2b12"_s << u"ab1"_s << u"2"_s;
        QTest::newRow("only a mark") << u"9"_s << QString() << u"9"_s;
        QTest::newRow("another digit") << u"a٣"_s << u"a٣"_s << QString();
        QTest::newRow("empty") << QString() << QString() << QString();
    }
    void prints()
    {
        QFETCH(QString, morpheme);
        const morphemes::Print print = morphemes::printOf(morpheme);
        QTEST(print.text, "text");
        QTEST(print.mark, "mark");
    }

    void twins_data()
    {
        columns<int, int, QString>("lines", "entries", "last");
        QTest::newRow("nothing") << 0 << 0 << QString();
        QTest::newRow("one") << 1 << 2 << u"w0x2"_s;
        QTest::newRow("gone through once only") << 9 << 18 << u"w8x18"_s;
        QTest::newRow("just enough") << 10 << 19 << u"w8x18"_s;
        QTest::newRow("one is missing") << 18 << 19 << u"w0x2"_s;
        QTest::newRow("enough") << 19 << 19 << u"w18x"_s;
    }
    void twins()
    {
        QFETCH(int, lines);
        WordStore list;
        list.addAll(numbered(lines));
        morphemes::addNumberedTwins(list, numbered(lines));
        QTEST(list.count(), "entries");
        QTEST(list.at(list.count() - 1), "last");
        QCOMPARE(morphemes::canPick(list), lines >= 10);
    }

    /// 18 different entries in list order; the last never, the second twice as often as the first.
    void picksByItsFormula()
    {
        TestGround t;
        WordStore list;
        list.addAll(numbered(200));
        std::map<QString, int> drawn;
        for (int round = 0; round < 20000; ++round) {
            const QStringList game = morphemes::pick(list, t.rnd);
            QCOMPARE(game.size(), 18);
            for (qsizetype i = 0; round < 100 && i + 1 < game.size(); ++i)
                QVERIFY(list.findExact(game[i]) < list.findExact(game[i + 1]));
            for (const QString &morpheme : game)
                ++drawn[morpheme];
        }
        QCOMPARE(drawn.count(u"w199x"_s), std::size_t(0));
        QCOMPARE(drawn.size(), std::size_t(199));
        const double weight = double(drawn[u"w1x"_s]) / drawn[u"w0x"_s];
        QVERIFY2(weight > 1.7 && weight < 2.2, qPrintable(QString::number(weight)));
    }

    void turns()
    {
        Game game;
        MemoryRules &r = game.rules;
        const auto [a, a2] = game.cardsOf(1);
        const auto [b, b2] = game.cardsOf(2);
        const auto told = [&r](Turn turn) {
            return u"%1 %2 %3 %4%5"_s.arg(int(turn))
                .arg(r.Clicks())
                .arg(r.PairsFound())
                .arg(r.FirstCardTurned() ? u"open"_s : u"shut"_s, r.isWaiting() ? u" waits"_s : QString());
        };
        QCOMPARE(told(r.click(a)), u"1 0 0 open"_s);
        QCOMPARE(told(r.click(a)), u"0 0 0 open"_s); // itself: costs nothing
        QCOMPARE(told(r.click(b)), u"3 1 0 open waits"_s);
        QVERIFY(r.isUp(a) && r.isUp(b));
        for (int i = 0; i < 1000; ++i)
            QCOMPARE(r.click(i % 36), Turn::Ignored);
        r.turnDown();
        QCOMPARE(told(Turn::Ignored), u"0 1 0 shut"_s);
        QVERIFY(!r.isUp(a) && !r.isUp(b));
        r.click(a);
        QCOMPARE(told(r.click(a2)), u"4 2 1 shut"_s);
        QVERIFY(r.isSolved(a) && r.isSolved(a2));
        QCOMPARE(told(r.click(a)), u"0 2 1 shut"_s); // a solved card opens no turn
        r.click(b);
        QCOMPARE(told(r.click(a)), u"2 3 1 open"_s); // as the second it costs, and the turn stays open
        QCOMPARE(told(r.click(b2)), u"4 4 2 shut"_s);
        r.deal(numbered(18));
        QCOMPARE(told(Turn::Ignored), u"0 0 0 shut"_s);
        QVERIFY(!r.isSolved(a) && !r.isSolved(b));
    }

    void secondsEndWithTheGame()
    {
        Game game;
        const auto later = [&game](int ms) { game.t.clock.moment = game.t.clock.moment.addMSecs(ms); };
        later(2998);
        QCOMPARE(game.rules.seconds(), 2);
        later(1);
        QCOMPARE(game.rules.seconds(), 3);
        later(-60000); // the clock is set back
        QCOMPARE(game.rules.seconds(), 0);
        later(65000);
        for (int morpheme = 1; morpheme < 18; ++morpheme)
            QCOMPARE(game.find(morpheme), Turn::Pair);
        QCOMPARE(game.find(18), Turn::Finished);
        QCOMPARE(game.rules.Clicks(), 18); // the lowest score there is
        later(100000);
        QCOMPARE(game.rules.seconds(), 8);
    }

    /// A player who forgets nothing, now and then presses what is solved or up, and keeps his own count.
    void aThousandGames()
    {
        for (quint64 seed = 1; seed <= 1000; ++seed) {
            Game game(seed);
            MemoryRules &r = game.rules;
            Rnd hand(seed + 5000);
            std::map<QString, int> seen;
            QList<int> unknown(36);
            std::iota(unknown.begin(), unknown.end(), 0);
            int clicks = 0;
            int pairs = 0;
            const auto turnUnknown = [&] {
                const int card = unknown.takeAt(hand.absInt(double(unknown.size())));
                return std::pair(card, r.click(card));
            };
            while (pairs < 18) {
                const auto [first, turn] = turnUnknown();
                QCOMPARE(turn, Turn::First);
                QCOMPARE(r.click(first), Turn::Ignored);
                for (int card = 0; card < 36 && hand() < 0.1; ++card)
                    if (r.isSolved(card) && ++clicks > 0)
                        QCOMPARE(r.click(card), Turn::Counted);
                const QString text = r.printOf(first).text;
                int second = seen.contains(text) ? seen[text] : -1;
                Turn result = second >= 0 ? r.click(second) : Turn::Ignored;
                if (second < 0)
                    std::tie(second, result) = turnUnknown();
                ++clicks;
                seen[text] = first;
                if (r.printOf(second).text == text) {
                    QCOMPARE(result, ++pairs < 18 ? Turn::Pair : Turn::Finished);
                } else {
                    QCOMPARE(result, Turn::NoPair);
                    const QString other = r.printOf(second).text;
                    r.turnDown();
                    if (seen.contains(other)) { // its twin is known
                        QCOMPARE(r.click(second), Turn::First);
                        QCOMPARE(r.click(seen[other]), ++pairs < 18 ? Turn::Pair : Turn::Finished);
                        ++clicks;
                    }
                    seen[other] = second;
                }
                QCOMPARE(r.Clicks(), clicks);
                QCOMPARE(r.PairsFound(), pairs);
            }
            QVERIFY(clicks >= 18);
        }
    }

    void ball_data()
    {
        columns<int, int, int, bool>("height", "fewestMoves", "mostMoves", "leaves");
        QTest::newRow("the window as designed") << 6075 << 2800 << 3100 << false;
        QTest::newRow("much higher than wide") << 6075 * 5 << 6090 << 6110 << true;
    }
    void ball()
    {
        QFETCH(int, height);
        for (const double random : {0.0, 0.5, 0.999}) {
            BouncingBall ball(random);
            int moves = 0;
            int bounces = 0;
            bool left = false;
            while (ball.BounceCount < 10 && !left) {
                const BouncingBall::Moved moved = ball.move(height, 6100);
                bounces += moved.bounced ? 1 : 0;
                left = moved.left;
                ++moves;
                QVERIFY(ball.Y <= float(height) && ball.X > 0);
            }
            QCOMPARE(bounces, ball.BounceCount);
            QTEST(left, "leaves");
            QFETCH(int, fewestMoves);
            QFETCH(int, mostMoves);
            QVERIFY2(moves >= fewestMoves && moves <= mostMoves, qPrintable(QString::number(moves)));
        }
    }
};

WORTEL_TEST(MemoryRulesTest)
#include "tst_memory_rules.moc"
