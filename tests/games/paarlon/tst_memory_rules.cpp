// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/paarlon/bouncing_ball.h"
#include "games/paarlon/memory_rules.h"
#include "platform/word_store.h"
#include "support/test_class.h"
#include "support/test_ground.h"

#include <algorithm>
#include <array>
#include <numeric>

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
    }

    TestGround t;
    MemoryRules rules{t.rnd, t.clock};

    /// The cards of the morpheme 1 to 18.
    std::pair<int, int> cardsOf(int morpheme) const
    {
        std::vector<int> found;
        for (int card = 0; card < 36; ++card)
            if (rules.CardMorpheme(card) == morpheme)
                found.push_back(card);
        return {found.at(0), found.at(1)};
    }
};

} // namespace

class MemoryRulesTest : public QObject
{
    Q_OBJECT

private slots:
    // clang-format off
    void prints()
    {
        for (const auto &[morpheme, text, mark] :
             {std::tuple{u"fahr"_s, u"fahr"_s, u""_s}, {u"XY2"_s, u"XY"_s, u"2"_s}, {u"9"_s, u""_s, u"9"_s}, {u"XY10"_s, u"XY10"_s, u""_s},
              {u"a2b12"_s, u"ab1"_s, u"2"_s}, {u"a٣"_s, u"a٣"_s, u""_s}, {u""_s, u""_s, u""_s}})
            QVERIFY2(morphemes::printOf(morpheme) == (morphemes::Print{text, mark}), qPrintable(morpheme));
    }

    void twins()
    {
        for (const auto &[lines, entries, last] :
             {std::tuple{0, 0, u""_s}, {1, 2, u"w0x2"_s}, {9, 18, u"w8x18"_s}, {10, 19, u"w8x18"_s}, {18, 19, u"w0x2"_s}, {19, 19, u"w18x"_s}}) {
            WordStore list;
            list.addAll(numbered(lines));
            morphemes::addNumberedTwins(list, numbered(lines)); // gone through once only
            QCOMPARE(list.count(), entries);
            QCOMPARE(list.at(entries - 1), last);
            QCOMPARE(morphemes::canPick(list), lines >= 10);
        }
    }
    // clang-format on

    /// 18 different entries in list order; the last never, the second twice as often as the first.
    void picksByItsFormula()
    {
        TestGround t;
        WordStore list;
        list.addAll(numbered(200));
        std::array<int, 200> drawn{};
        for (int round = 0; round < 10000; ++round) {
            int before = -1;
            for (const QString &morpheme : morphemes::pick(list, t.rnd)) {
                const int row = list.findExact(morpheme);
                QVERIFY(row > before);
                ++drawn[std::size_t(before = row)];
            }
        }
        QCOMPARE(std::accumulate(drawn.begin(), drawn.end(), 0), 180000);
        QCOMPARE(std::count(drawn.begin(), drawn.end(), 0), 1);
        QCOMPARE(drawn[199], 0);
        const double weight = double(drawn[1]) / drawn[0];
        QVERIFY2(weight > 1.65 && weight < 2.25, qPrintable(QString::number(weight)));
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
        for (int i = 0; i < 1000; ++i)
            QVERIFY(r.click(i % 36) == Turn::Ignored && r.isUp(a) && r.isUp(b));
        r.turnDown();
        QCOMPARE(told(Turn::Ignored), u"0 1 0 shut"_s);
        r.click(a);
        QCOMPARE(told(r.click(a2)), u"4 2 1 shut"_s);
        QVERIFY(r.isSolved(a) && r.isSolved(a2) && !r.isUp(a));
        QCOMPARE(told(r.click(a)), u"0 2 1 shut"_s); // a solved card opens no turn
        r.click(b);
        QCOMPARE(told(r.click(a)), u"2 3 1 open"_s); // as the second it costs, and the turn stays open
        QCOMPARE(told(r.click(b2)), u"4 4 2 shut"_s);
        r.deal(numbered(18));
        QVERIFY(r.Clicks() == 0 && !r.isSolved(a) && !r.isSolved(b));
        game.t.clock.moment = game.t.clock.moment.addSecs(-60);
        QCOMPARE(r.seconds(), 0); // the clock was set back
    }

    /// A player without any memory, who tries all cards behind the first one, and keeps his own count.
    void aThousandGames()
    {
        for (quint64 seed = 1; seed <= 1000; ++seed) {
            Game game(seed);
            MemoryRules &r = game.rules;
            int clicks = 0;
            int pairs = 0;
            for (int first = 0; first < 36; ++first) {
                for (int second = 35; second > first && !r.isSolved(first); --second) {
                    if (!r.FirstCardTurned())
                        QCOMPARE(r.click(first), Turn::First);
                    const bool wasSolved = r.isSolved(second);
                    const bool isPair = !wasSolved && r.printOf(first) == r.printOf(second);
                    pairs += isPair ? 1 : 0;
                    QCOMPARE(r.click(second), wasSolved    ? Turn::Counted
                                              : !isPair    ? Turn::NoPair
                                              : pairs < 18 ? Turn::Pair
                                                           : Turn::Finished);
                    ++clicks;
                    if (r.isWaiting())
                        r.turnDown();
                }
                QVERIFY(r.Clicks() == clicks && r.PairsFound() == pairs && r.isSolved(first));
            }
            QCOMPARE(pairs, 18);
        }
    }

    void ball()
    {
        // In a window much higher than wide the ball is out at the right before it has bounced ten times.
        for (const auto &[height, fewest, most, leaves] :
             {std::tuple{6075, 2800, 3100, false}, {6075 * 5, 6090, 6110, true}}) {
            for (const double random : {0.0, 0.5, 0.999}) {
                BouncingBall ball(random);
                int moves = 0;
                bool left = false;
                for (; ball.BounceCount < 10 && !left; ++moves) {
                    left = ball.move(height, 6100).left;
                    QVERIFY(ball.Y <= float(height) && ball.X > 0);
                }
                QCOMPARE(left, leaves);
                QVERIFY2(moves >= fewest && moves <= most, qPrintable(QString::number(moves)));
            }
        }
    }
};

WORTEL_TEST(MemoryRulesTest)
#include "tst_memory_rules.moc"
