// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/paarlon/memory_scores.h"
#include "support/columns.h"
#include "support/registry.h"
#include "support/test_ground.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

const QString sortedSeed = u"990,Wortel~991,Wortel~992,Wortel~993,Wortel~994,Wortel~995,Wortel~996,Wortel~"
                           u"997,Wortel~998,Wortel~999,Wortel"_s;
const QString full = u" 20,Aa~ 30,Bb~ 40,Cc~ 40,Dd~ 50,Ee~ 60,Ff~ 70,Gg~ 80,Hh~ 90,Ii~100,Jj"_s;

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
    void reads_data()
    {
        columns<QString, QString>("stored", "list");
        QTest::newRow("the seed, unordered in its middle") << QString::fromUtf16(TopTen::seed) << sortedSeed;
        QTest::newRow("three places before two") << full << full;
        QTest::newRow("equal scores by name, whatever its case")
            << u" 40,zoe~ 40,Anna~ 40,Bo"_s << u" 40,Anna~ 40,Bo~ 40,zoe"_s + seedFrom(993);
        QTest::newRow("empty") << QString() << sortedSeed;
        QTest::newRow("cut in a record") << u" 36,Anna~ 4"_s << u" 36,Anna"_s + seedFrom(991);
        QTest::newRow("no record at all") << u"abc~,x~-5,y~0,z~1e99,a~~"_s << sortedSeed;
        QTest::newRow("without its blanks") << u"99,B~100,C~9,A"_s << u"  9,A~ 99,B~100,C"_s + seedFrom(993);
        QTest::newRow("comma in a name") << u" 36,Max, Moritz"_s << u" 36,Max, Moritz"_s + seedFrom(991);
        QString many;
        for (int i = 5000; i > 0; --i)
            many += u"%1,n~"_s.arg(100 + i % 800);
        QTest::newRow("5000") << many
                              << QStringList(QStringList{u"100,n"_s, u"100,n"_s, u"100,n"_s, u"100,n"_s,
                                                         u"100,n"_s, u"100,n"_s, u"101,n"_s, u"101,n"_s,
                                                         u"101,n"_s, u"101,n"_s})
                                     .join(u'~');
    }
    void reads()
    {
        QFETCH(QString, stored);
        QTEST(TopTen::fromText(stored).text(), "list");
    }

    void enters_data()
    {
        columns<int, QString, QString>("clicks", "name", "list");
        const QString rest = u"~ 50,Ee~ 60,Ff~ 70,Gg~ 80,Hh~ 90,Ii"_s;
        QTest::newRow("first") << 18 << u"Neu"_s << u" 18,Neu~ 20,Aa~ 30,Bb~ 40,Cc~ 40,Dd"_s + rest;
        QTest::newRow("behind its equals")
            << 40 << u"Neu"_s << u" 20,Aa~ 30,Bb~ 40,Cc~ 40,Dd~ 40,Neu"_s + rest;
        QTest::newRow("pushes the tenth out")
            << 99 << u"Neu"_s << QString(full).replace(u"100,Jj"_s, u" 99,Neu"_s);
        QTest::newRow("equal to the tenth") << 100 << QString() << QString();
        QTest::newRow("beyond it") << 1200 << QString() << QString();
        QTest::newRow("no name") << 25 << QString() << u" 20,Aa~ 25,Bb~ 30,Bb~ 40,Cc~ 40,Dd"_s + rest;
        QTest::newRow("a name with the sign between records")
            << 19 << u"Max~1,Moritz"_s << u" 19,Max-1,Moritz~ 20,Aa~ 30,Bb~ 40,Cc~ 40,Dd"_s + rest;
    }
    void enters()
    {
        QFETCH(int, clicks);
        QFETCH(QString, name);
        QFETCH(QString, list);
        TopTen ten = TopTen::fromText(full);
        const std::optional<int> place = ten.placeOf(clicks);
        QCOMPARE(place.has_value(), !list.isEmpty());
        if (!place)
            return;
        ten.enter(*place, clicks, name);
        QCOMPARE(ten.text(), list);
        QCOMPARE(TopTen::fromText(list).text(), list);
    }

    void visibleTime_data()
    {
        columns<QString, int>("stored", "milliseconds");
        for (const auto &[stored, ms] : {std::pair{"2", 2000},
                                         {"0.5", 500},
                                         {"0,25", 250},
                                         {"65.535", 65535},
                                         {"65.6", 2000},
                                         {"0", 2000},
                                         {"-3", 2000},
                                         {"abc", 2000},
                                         {"1e9", 2000},
                                         {"0.0001", 2000},
                                         {"", 2000}})
            QTest::newRow(stored) << QString::fromLatin1(stored) << ms;
    }
    void visibleTime()
    {
        QFETCH(QString, stored);
        TestGround t;
        QCOMPARE(MemoryScores(t.store).visibleTime(), 2000);
        t.store.SaveSetting(u"MemoryGame"_s, u"MemoryVisibleTime"_s, stored);
        QTEST(MemoryScores(t.store).visibleTime(), "milliseconds");
    }

    /// Each list lies under its own key, and one is reset without the others.
    void resets()
    {
        TestGround t;
        MemoryScores scores(t.store);
        const QStringList keys{u"PräfixeTop 10:"_s, u"WortelTop 10:"_s, u"SuffixeTop 10:"_s};
        const auto stored = [&t](const QString &key) {
            return t.store.GetSetting(u"MemoryGame"_s, key, u"-"_s);
        };
        const QString seed = u"999,Wortel~998,Wortel~996,Wortel~997,Wortel~994,Wortel~992,Wortel~995,Wortel~"
                             u"993,Wortel~991,Wortel~990,Wortel"_s;
        for (std::size_t one = 0; one < 3; ++one) {
            for (std::size_t i = 0; i < 3; ++i) {
                scores.saveTopTen(memoryKinds[i], TopTen::fromText(full));
                QCOMPARE(stored(keys[qsizetype(i)]), full);
            }
            scores.saveRecord(33);
            QCOMPARE(scores.Score(), 33);
            QCOMPARE(stored(u"Name"_s), QString());
            scores.reset(&memoryKinds[one]);
            for (std::size_t i = 0; i < 3; ++i)
                QCOMPARE(stored(keys[qsizetype(i)]), i == one ? seed : full);
            QCOMPARE(stored(u"Score"_s) + stored(u"Name"_s) + stored(u"Time"_s), u"0Wortel0"_s);
        }
        scores.reset(nullptr);
        for (const QString &key : keys)
            QCOMPARE(stored(key), seed);
    }
};

WORTEL_TEST(MemoryScoresTest)
#include "tst_memory_scores.moc"
