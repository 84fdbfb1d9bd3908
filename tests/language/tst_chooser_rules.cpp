// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/chooser/chooser_rules.h"
#include "language/chooser/random_draw.h"
#include "platform/work.h"
#include "support/test_class.h"
#include "support/test_ground.h"

/// What the word chooser asks of words, and how it draws.
class ChooserRulesTest : public QObject
{
    Q_OBJECT

private slots:
    void words_data()
    {
        columns<QString, QString>("word", "properties");
        QTest::newRow("nine letters") << u"Unfallort"_s << u"short capital"_s;
        QTest::newRow("ten letters") << u"abgefahren"_s << u"long small"_s;
        QTest::newRow("umlaut") << u"Äpfel"_s << u"short capital"_s;
        QTest::newRow("capitals") << u"ÄPFEL"_s << u"short small"_s;
        QTest::newRow("sharp s") << u"ßen"_s << u"short capital"_s;
        QTest::newRow("small adjective") << u"richtig"_s << u"short small adjective"_s;
        QTest::newRow("case ignored") << u"WunderBAR"_s << u"short small adjective"_s;
        QTest::newRow("ending in the middle") << u"lichte"_s << u"short small"_s;
        QTest::newRow("noun") << u"Bücherei"_s << u"short capital noun"_s;
        QTest::newRow("nothing but an ending") << u"ung"_s << u"short small noun"_s;
        QTest::newRow("heit is none of them") << u"Freiheit"_s << u"short capital"_s;
        QTest::newRow("500 letters") << QString(500, u'a') << u"long small"_s;
    }
    void words()
    {
        QFETCH(QString, word);
        QStringList found;
        found << (passes(word, WordFilter::Short) ? u"short"_s : QString())
              << (passes(word, WordFilter::Long) ? u"long"_s : QString())
              << (passes(word, WordFilter::Capital) ? u"capital"_s : QString())
              << (passes(word, WordFilter::NotCapital) ? u"small"_s : QString())
              << (IsAdjectiveSuffix(word) ? u"adjective"_s : QString())
              << (IsNomenSuffix(word) ? u"noun"_s : QString());
        found.removeAll(QString());
        QTEST(found.join(u' '), "properties");
        QVERIFY(passes(word, WordFilter::All));
    }

    void duplicatesGoBehindTheFirst()
    {
        QCOMPARE(withoutDuplicates({u"Äpfel"_s, u"b"_s, u"äPFEL"_s, u"B"_s, u"a"_s}),
                 QStringList({u"Äpfel"_s, u"b"_s, u"a"_s}));
    }

    /// One more than there are ends a round, and only one; the next goes on until it is cancelled.
    void drawsBeyondTheList()
    {
        TestGround t;
        Work work(t.ground);
        int draws = 0;
        t.pump.waiting = true;
        t.pump.onServe = [&] {
            if (++draws == 5000)
                work.cancel();
        };
        RandomDraw draw(t.rnd, 40);
        QSet<int> rows;
        for (int round = 0; round < 40; ++round)
            if (const auto row = draw.round(work))
                rows.insert(*row);
        QCOMPARE(rows.size(), 40);
        QVERIFY(!draw.round(work));
        QCOMPARE(draws, 540);
        QVERIFY(!draw.round(work));
        QCOMPARE(draws, 5000);
        QVERIFY(!RandomDraw(t.rnd, 0).round(work));
    }
};

WORTEL_TEST(ChooserRulesTest)
#include "tst_chooser_rules.moc"
