// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/paarlon/memory_scores.h"
#include "support/test_class.h"
#include "support/test_ground.h"

namespace {

const QString full = u" 20,Aa~ 30,Bb~ 40,Cc~ 40,Dd~ 50,Ee~ 60,Ff~ 70,Gg~ 80,Hh~ 90,Ii~100,Jj"_s;

/// The worst of the seed, which fill up a list.
QString seedFrom(int first)
{
    QString text;
    for (int score = first; score <= 999; ++score)
        text += u"~%1,Wortel"_s.arg(score);
    return text;
}

} // namespace

class MemoryScoresTest : public QObject
{
    Q_OBJECT

private slots:
    // clang-format off
    void reads()
    {
        const QString seed = seedFrom(990).mid(1);
        for (const auto &[stored, list] :
             {std::pair{QString::fromUtf16(TopTen::seed), seed}, {full, full}, {QString(), seed},
              {u" 40,zoe~ 40,Anna~ 40,Bo"_s, u" 40,Anna~ 40,Bo~ 40,zoe"_s + seedFrom(993)}, // by name, whatever its case
              {u" 36,Anna~ 4"_s, u" 36,Anna"_s + seedFrom(991)},                            // cut in a record
              {u"abc~,x~-5,y~0,z~1e99,a~~"_s, seed},
              {u"99,B~100,C~9,A"_s, u"  9,A~ 99,B~100,C"_s + seedFrom(993)},                // without its blanks
              {u" 36,Max, Moritz"_s, u" 36,Max, Moritz"_s + seedFrom(991)},
              {u"999,x~"_s.repeated(4990) + full, full}})
            QCOMPARE(TopTen::fromText(stored).text(), list);
    }

    void enters()
    {
        const QString start = u" 20,Aa~ 30,Bb~ 40,Cc~ 40,Dd"_s;
        const QString rest = u"~ 50,Ee~ 60,Ff~ 70,Gg~ 80,Hh~ 90,Ii"_s;
        for (const auto &[clicks, name, list] :
             {std::tuple{18, u"Neu"_s, u" 18,Neu~"_s + start + rest},
              {40, u"Neu"_s, start + u"~ 40,Neu"_s + rest}, // behind its equals
              {99, u"Neu"_s, start + rest + u"~ 99,Neu"_s}, {100, u"Neu"_s, QString()}, {1200, u"Neu"_s, QString()},
              {25, QString(), u" 20,Aa~ 25,Bb~ 30,Bb~ 40,Cc~ 40,Dd"_s + rest}, // the name that stood there
              {19, u"Max~1,Moritz"_s, u" 19,Max-1,Moritz~"_s + start + rest}}) {
            TopTen ten = TopTen::fromText(full);
            const std::optional<int> place = ten.placeOf(clicks);
            if (place)
                ten.enter(*place, clicks, name);
            QCOMPARE(place ? ten.text() : QString(), list);
        }
    }
    // clang-format on

    void visibleTime()
    {
        TestGround t;
        QCOMPARE(MemoryScores(t.store).visibleTime(), 2000);
        for (const auto &[stored, milliseconds] : {std::pair{u"0.5"_s, 500},
                                                   {u"0,25"_s, 250},
                                                   {u"65.535"_s, 65535},
                                                   {u"65.6"_s, 2000},
                                                   {u"0"_s, 2000},
                                                   {u"-3"_s, 2000},
                                                   {u"abc"_s, 2000},
                                                   {u"1e9"_s, 2000},
                                                   {u""_s, 2000}}) {
            t.store.SaveSetting(u"MemoryGame"_s, u"MorphemeVisibleTime"_s, stored);
            QCOMPARE(MemoryScores(t.store).visibleTime(), milliseconds);
        }
    }

    /// Each list lies under its own key, and one is reset without the others.
    void resets()
    {
        TestGround t;
        MemoryScores scores(t.store);
        const auto stored = [&t](const QString &key) {
            return t.store.GetSetting(u"MemoryGame"_s, key, u"-"_s).left(15);
        };
        const auto lists = [&stored] {
            return stored(u"PräfixeTop 10:"_s) + u'|' + stored(u"WortelTop 10:"_s) + u'|' +
                   stored(u"SuffixeTop 10:"_s);
        };
        const QString kept = u" 20,Aa~ 30,Bb~ "_s;
        const QString seed = u"999,Wortel~998,"_s;
        for (const MemoryKind &kind : memoryKinds)
            scores.saveTopTen(kind, TopTen::fromText(full));
        scores.saveRecord(33);
        QCOMPARE(stored(u"Score"_s) + stored(u"Name"_s), u"33"_s);
        scores.reset(&wortelMemory);
        QCOMPARE(lists(), kept + u'|' + seed + u'|' + kept);
        QCOMPARE(stored(u"Score"_s) + stored(u"Name"_s) + stored(u"Time"_s), u"0Wortel0"_s);
        scores.reset(nullptr);
        QCOMPARE(lists(), seed + u'|' + seed + u'|' + seed);
    }
};

WORTEL_TEST(MemoryScoresTest)
#include "tst_memory_scores.moc"
