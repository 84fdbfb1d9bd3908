// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "generators/nonsense_tables.h"
#include "generators/nonsense_words.h"
#include "language/word_tests.h"
#include "platform/text.h"
#include "platform/word_lists.h"
#include "support/columns.h"
#include "support/plain_board.h"
#include "support/registry.h"
#include "support/test_ground.h"

#include <QSet>
#include <QtTest>

using namespace Qt::StringLiterals;

/// The spelling rules of the nonsense words, one by one and in their order.
class NonsenseRulesTest : public QObject
{
    Q_OBJECT

private slots:
    void acceptedForm_data()
    {
        QTest::addColumn<QString>("word");
        QTest::addColumn<QString>("form"); // "-": adds nothing
        QTest::newRow("GE with t") << u"GEhaust"_s << u"GEhaust"_s;
        QTest::newRow("GE with en") << u"GElaufEN"_s << u"GElaufEN"_s;
        QTest::newRow("GE with barkeit") << u"GElaufbarkeit"_s << u"Gelaufbarkeit"_s;
        QTest::newRow("GE with lichkeit") << u"GElauflichKEIT"_s << u"Gelauflichkeit"_s;
        QTest::newRow("GE with enheit") << u"GElaufenheit"_s << u"Gelaufenheit"_s;
        QTest::newRow("GE with another noun ending") << u"GElaufung"_s << u"-"_s;
        QTest::newRow("GE with tt is asked for t first") << u"GElautt"_s << u"GElautt"_s;
        QTest::newRow("Ge with e") << u"Gelaufe"_s << u"Gelaufe"_s;
        QTest::newRow("Ge without e") << u"Gelaufung"_s << u"-"_s;
        QTest::newRow("ge is no case of its own") << u"gelaufer"_s << u"gelaufer"_s;
        QTest::newRow("haftig in small letters") << u"VERhausHAFTIG"_s << u"verhaushaftig"_s;
        QTest::newRow("noun ending") << u"verhausigung"_s << u"Verhausigung"_s;
        QTest::newRow("losigkeit by its igkeit") << u"hauslosigkeit"_s << u"Hauslosigkeit"_s;
        QTest::newRow("erei") << u"HAUSerei"_s << u"Hauserei"_s;
        QTest::newRow("tst gets its e, everywhere") << u"startst"_s << u"estartest"_s;
        QTest::newRow("tst in capitals stays") << u"starTST"_s << u"estarTST"_s;
        QTest::newRow("dst") << u"findst"_s << u"findest"_s;
        QTest::newRow("tt") << u"laett"_s << u"-"_s;
        QTest::newRow("anything else") << u"Verhauser"_s << u"Verhauser"_s;
        QTest::newRow("empty") << QString() << QString();
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
        // Some hold others, so that the loss of one shows only in the table itself.
        QStringList table;
        for (const QStringView cluster : nonsense::BadClusterSweepList)
            table.append(cluster.toString());
        QCOMPARE(table.join(u' '), clusters + u" SST"_s);
        QCOMPARE(nonsense::badClusterCount, 29U);
    }

    void clusters_data()
    {
        columns<QString, QString, bool, bool>("stem", "suffix", "bad", "badForSweep");
        QTest::newRow("harmless") << u"haus"_s << u"er"_s << false << false;
        QTest::newRow("sst is for the sweep only") << u"fass"_s << u"t"_s << false << true;
        QTest::newRow("sharp s with s, in any case") << u"fuß"_s << u"S"_s << true << true;
        QTest::newRow("sharp s is no double s") << u"fuß"_s << u"chaft"_s << false << false;
        QTest::newRow("umlaut folds, across the seam") << u"brüt"_s << u"t"_s << true << true;
        QTest::newRow("tst gets its e first") << u"haft"_s << u"st"_s << false << false;
    }
    void clusters()
    {
        QFETCH(QString, stem);
        QFETCH(QString, suffix);
        const QString stretch = nonsense::stretchOf(stem, suffix);
        QTEST(nonsense::holdsBadCluster(stretch), "bad");
        QTEST(nonsense::holdsBadClusterForSweep(stretch), "badForSweep");
    }

    void suffixes_data()
    {
        columns<QString, QStringList>("suffix", "drawn");
        QTest::newRow("keit") << u"keit"_s << QStringList({u"barkeit"_s, u"lichkeit"_s});
        QTest::newRow("KEIT keeps its case")
            << u"KEIT"_s << QStringList({u"barKEIT"_s, u"barkeit"_s, u"lichKEIT"_s, u"lichkeit"_s});
        QTest::newRow("heit") << u"heit"_s << QStringList(u"enheit"_s);
        QTest::newRow("ung") << u"Ung"_s << QStringList(u"igUng"_s);
        QTest::newRow("igkeit") << u"igkeit"_s << QStringList({u"barkeit"_s, u"lichkeit"_s});
        QTest::newRow("lichung stays") << u"lichung"_s << QStringList(u"lichung"_s);
        QTest::newRow("none") << QString() << QStringList(QString());
    }
    void suffixes()
    {
        QFETCH(QString, suffix);
        Rnd rnd(5);
        QSet<QString> seen;
        for (int i = 0; i < 300; ++i)
            seen.insert(nonsense::expandSuffix(suffix, rnd));
        QStringList drawn = seen.values();
        drawn.sort();
        QTEST(drawn, "drawn");
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

    void collecting_data()
    {
        columns<QString, QStringList, QStringList>("stemList", "prefixes", "suffixes");
        QTest::newRow("usual list") << u"AU ODER EI"_s << QStringList({u"ver"_s, u"S"_s})
                                    << QStringList({u"ung"_s, u"lich"_s, u"losigkeit"_s});
        QTest::newRow("noun list") << u"Ung Heit Keit schaft NIS TUM"_s << QStringList()
                                   << QStringList({u"ung"_s, u"losigkeit"_s});
    }
    void collecting()
    {
        QFETCH(QString, stemList);
        QFETCH(QStringList, prefixes);
        QFETCH(QStringList, suffixes);
        TestGround t;
        PlainBoard board(t.ground);
        WordLists lists;
        lists.WortelReTypeList.add(u"old"_s);
        board.lay(u"haus"_s, colours::wortelBack);
        board.lay(u"HAUS"_s, colours::wortelBack);
        board.lay(u"er"_s, colours::wortelBack);
        board.lay(u"ver"_s, colours::prefixBack);
        board.lay(u"S"_s, colours::prefixBack);
        for (const QString &suffix : {u"s"_s, u"ung"_s, u"ER"_s, u"lich"_s, u"losigkeit"_s, u"UNG"_s})
            board.lay(suffix, colours::suffixBack);
        board.lay(u"grey"_s, 0x808080);
        board.filter = 1; // the filter does not matter
        collectNonsenseMorphemes(board.tiles.tiles(), stemList, lists);
        QCOMPARE(lists.WortelReTypeList.rows(), QStringList({u"haus"_s, u"er"_s}));
        QCOMPARE(lists.PrefixReTypeList.rows(), prefixes);
        QCOMPARE(lists.SuffixReTypeList.rows(), suffixes);
        collectMorphemes(board.tiles.tiles(), lists);
        QCOMPARE(lists.PrefixReTypeList.count(), 2);
        QCOMPARE(lists.SuffixReTypeList.count(), 5);
    }

    /// No word that the dictionary holds in any case is accepted, and none twice: the form with its linked e
    /// counts.
    void acceptsNoRealWordAndNoneTwice_data()
    {
        columns<QString, QString, QString, QString>("stem", "suffix", "real", "form");
        QTest::newRow("noun") << u"haus"_s << u"ung"_s << u"HAUSIGUNG"_s << u"Hausigung"_s;
        QTest::newRow("tst") << u"haft"_s << u"st"_s << u"haftest"_s << u"haftest"_s;
        QTest::newRow("dst") << u"find"_s << u"st"_s << u"FINDEST"_s << u"findest"_s;
    }
    void acceptsNoRealWordAndNoneTwice()
    {
        QFETCH(QString, stem);
        QFETCH(QString, suffix);
        QFETCH(QString, real);
        QFETCH(QString, form);
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

        lists.WortelReTypeList.clear();
        lists.SuffixReTypeList.clear();
        QVERIFY(!generator.tryWord()); // nothing is no word
    }

    /// Against the sweep as it is told: each index up to the count of the start, the row that moves up passed
    /// over.
    void sweepPassesOverTheRowThatMovesUp()
    {
        Rnd rnd(11);
        const QStringList pool{u"Mast"_s,  u"fasst"_s, u"Haus"_s, u"lasst"_s,
                               u"Ratte"_s, u"zart"_s,  u"esst"_s};
        int passedOver = 0;
        for (int run = 0; run < 200; ++run) {
            WordStore swept(WordStore::KeptSorted);
            QStringList told;
            nonsense::Sweep sweep;
            for (int round = 0; round < 4; ++round) {
                for (int i = rnd.absInt(8); i > 0; --i) {
                    const QString word = pool.at(rnd.absInt(static_cast<double>(pool.size())));
                    sweep.added(swept.add(word), word);
                }
                told = swept.rows();
                int removed = 0;
                for (qsizetype index = 0, count = told.size(); index < count; ++index)
                    if (nonsense::holdsBadClusterForSweep(UCase(told.value(index)))) {
                        told.removeAt(index);
                        ++removed;
                    }
                QCOMPARE(sweep.run(swept), removed);
                QCOMPARE(swept.rows(), told);
                for (const QString &word : told)
                    passedOver += nonsense::holdsBadClusterForSweep(UCase(word)) ? 1 : 0;
            }
        }
        QVERIFY(passedOver > 100); // the odd case did come up
    }
};

WORTEL_TEST(NonsenseRulesTest)
#include "tst_nonsense_rules.moc"
