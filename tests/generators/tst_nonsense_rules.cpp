// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "generators/nonsense_tables.h"
#include "generators/nonsense_words.h"
#include "language/word_tests.h"
#include "platform/text.h"
#include "platform/word_lists.h"
#include "support/plain_board.h"
#include "support/test_class.h"
#include "support/test_ground.h"

/// The spelling rules of the nonsense words, one by one and in their order.
class NonsenseRulesTest : public QObject
{
    Q_OBJECT

private slots:
    void acceptedForm_data()
    {
        QTest::addColumn<QString>("word");
        QTest::addColumn<QString>("form"); // "-": adds nothing
        QTest::newRow("GE with en") << u"GElaufEN"_s << u"GElaufEN"_s;
        QTest::newRow("GE with lichkeit") << u"GElauflichKEIT"_s << u"Gelauflichkeit"_s;
        QTest::newRow("GE with another noun ending") << u"GElaufung"_s << u"-"_s;
        QTest::newRow("GE with tt is asked for t first") << u"GElautt"_s << u"GElautt"_s;
        QTest::newRow("Ge with e") << u"Gelaufe"_s << u"Gelaufe"_s;
        QTest::newRow("Ge without e") << u"Gelaufung"_s << u"-"_s;
        QTest::newRow("haftig in small letters") << u"VERhausHAFTIG"_s << u"verhaushaftig"_s;
        QTest::newRow("noun ending") << u"verhausigung"_s << u"Verhausigung"_s;
        QTest::newRow("losigkeit by its igkeit") << u"hauslosigkeit"_s << u"Hauslosigkeit"_s;
        QTest::newRow("tst gets its e, everywhere") << u"startst"_s << u"estartest"_s;
        QTest::newRow("dst") << u"findst"_s << u"findest"_s;
        QTest::newRow("tt") << u"laett"_s << u"-"_s;
        QTest::newRow("anything else") << u"Verhauser"_s << u"Verhauser"_s;
    }
    void acceptedForm()
    {
        QFETCH(QString, word);
        QTEST(nonsense::acceptedForm(word).value_or(u"-"_s), "form");
    }

    void everyClusterIsForbidden()
    {
        const QString clusters =
            u"SSST LASST LASSST SSCHAFT SSAM TTT TTUM RATT LLICH LLOS NNIS BBAR KK II RATT DT ßS ZS EE HH "
            u"ZEITT DEUTT BETT TRETT LLLICH SAUSST BRÜTT LÖSST NN"_s;
        for (const QString &cluster : clusters.split(u' ')) {
            QVERIFY2(nonsense::holdsBadCluster(u"X"_s + cluster + u"X"_s), qPrintable(cluster));
            QVERIFY2(nonsense::holdsBadClusterForSweep(u"X"_s + cluster + u"X"_s), qPrintable(cluster));
        }
        QCOMPARE(nonsense::BadClusterSweepList.size(), 30U); // some hold others, so that none goes unseen
    }

    void clusters()
    {
        for (const auto &[stem, suffix, bad, badForSweep] :
             {std::tuple{u"fass"_s, u"t"_s, false, true},
              {u"fuß"_s, u"S"_s, true, true},        // in any case
              {u"fuß"_s, u"chaft"_s, false, false},  // a sharp s is no double s
              {u"brüt"_s, u"t"_s, true, true},       // the umlaut folds, across the seam
              {u"haft"_s, u"st"_s, false, false}}) { // tst gets its e first
            const QString stretch = nonsense::stretchOf(stem, suffix);
            QCOMPARE(nonsense::holdsBadCluster(stretch), bad);
            QCOMPARE(nonsense::holdsBadClusterForSweep(stretch), badForSweep);
        }
    }

    void suffixes()
    {
        for (const auto &[suffix, drawn] :
             {std::pair{u"keit"_s, u"barkeit lichkeit"_s},
              {u"KEIT"_s, u"barKEIT barkeit lichKEIT lichkeit"_s}, // keeps its case
              {u"heit"_s, u"enheit"_s},
              {u"Ung"_s, u"igUng"_s},
              {u"lichung"_s, u"lichung"_s}}) {
            Rnd rnd(5);
            QSet<QString> seen;
            for (int i = 0; i < 300; ++i)
                seen.insert(nonsense::expandSuffix(suffix, rnd));
            QStringList all = seen.values();
            all.sort();
            QCOMPARE(all.join(u' '), drawn);
        }
    }

    void joining()
    {
        const Morphemes noun{u"ver"_s, u"HAUS"_s, u"ung"_s};
        const Morphemes longer{u"ver"_s, u"HAUS"_s, u"igung"_s};
        QCOMPARE(nonsense::join(noun, 1), u"Verhausung"_s);
        QCOMPARE(nonsense::join(longer, 1), u"verHAUSigung"_s); // only bare suffixes are in the table
        QCOMPARE(nonsense::join(noun, 0), u"verHAUSung"_s);
        QCOMPARE(nonsense::join(noun, 2), QString());
    }

    void collecting()
    {
        for (const auto &[stemList, prefixes, suffixes] :
             {std::tuple{u"AU ODER EI"_s, u"ver S"_s, u"ung lich losigkeit"_s},
              {u"Ung Heit Keit schaft NIS TUM"_s, u""_s, u"ung losigkeit"_s}}) {
            TestGround t;
            PlainBoard board(t.ground);
            WordLists lists;
            lists.WortelReTypeList.add(u"old"_s);
            for (const QString &stem : {u"haus"_s, u"HAUS"_s, u"er"_s})
                board.lay(stem, colours::wortelBack);
            for (const QString &prefix : {u"ver"_s, u"S"_s})
                board.lay(prefix, colours::prefixBack);
            for (const QString &suffix : {u"s"_s, u"ung"_s, u"ER"_s, u"lich"_s, u"losigkeit"_s, u"UNG"_s})
                board.lay(suffix, colours::suffixBack);
            board.lay(u"grey"_s, 0x808080);
            collectNonsenseMorphemes(board.tiles.tiles(), stemList, lists);
            QCOMPARE(lists.WortelReTypeList.rows().join(u' '), u"haus er"_s);
            QCOMPARE(lists.PrefixReTypeList.rows().join(u' '), prefixes);
            QCOMPARE(lists.SuffixReTypeList.rows().join(u' '), suffixes);
            collectMorphemes(board.tiles.tiles(), lists);
            QCOMPARE(lists.PrefixReTypeList.count(), 2);
            QCOMPARE(lists.SuffixReTypeList.count(), 5);
        }
    }

    /// No word that the dictionary holds in any case is accepted, and none twice: the form with its linked e
    /// counts.
    void acceptsNoRealWordAndNoneTwice()
    {
        for (const auto &[stem, suffix, real, form] :
             {std::tuple{u"haus"_s, u"ung"_s, u"HAUSIGUNG"_s, u"Hausigung"_s},
              {u"haft"_s, u"st"_s, u"haftest"_s, u"haftest"_s},
              {u"find"_s, u"st"_s, u"FINDEST"_s, u"findest"_s}}) {
            TestGround t;
            WordLists lists;
            const WordTests tests(lists, t.options);
            lists.WortelReTypeList.add(stem);
            lists.SuffixReTypeList.add(suffix);
            lists.LexiconList.add(real);
            nonsense::Generator generator(lists, tests, t.rnd, 0);
            QVERIFY(!generator.tryWord());
            lists.LexiconList.clear();
            QVERIFY(generator.tryWord());
            QVERIFY(!generator.tryWord());
            QCOMPARE(lists.PseudoWordList.rows(), QStringList(form));
        }
    }
};

WORTEL_TEST(NonsenseRulesTest)
#include "tst_nonsense_rules.moc"
