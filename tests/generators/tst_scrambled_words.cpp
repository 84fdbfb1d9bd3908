// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "generators/scrambled_words.h"
#include "platform/text.h"
#include "support/test_board.h"
#include "support/test_class.h"

#include <set>

namespace {

/// A window of its own that shows a work.
class RecordedView : public WorkView
{
public:
    QStringList told;
    int maximum = 0;
    int open = 0;

    void begin(const WorkPlan &plan) override
    {
        ++open;
        maximum = plan.maximum;
        QVERIFY(plan.marks & WorkPlan::Cancel);
    }
    void tell(const QString &caption) override { told << caption; }
    void offerCancel() override {}
    void end() override { --open; }
};

} // namespace

/// Scrambled words and letter mixes: the tables row by row, and runs in a window.
class ScrambledWordsTest : public QObject
{
    Q_OBJECT

private:
    struct Window : TestHouse
    {
        Window()
        {
            for (const char *stem : {"haus", "lauf"})
                lay(wortelKind, 10, 50, QLatin1String(stem));
            for (const char *start : {"ver", "be"})
                lay(prefixKind, 10, 10, QLatin1String(start));
            for (const char *ending : {"er", "ung", "ER"})
                lay(suffixKind, 10, 90, QLatin1String(ending));
            lists.LexiconList.clear();
            lists.LexiconList.addAll({u"Verlaufung"_s, u"behauser"_s});
        }
        RecordedView view;
    };

private slots:
    void tables_data()
    {
        columns<bool, int, QString>("mix", "number", "pattern");
        const char *const orders[] = {"SWP", "SPW", "WPS", "WSP", "PSW"};
        const char *const mixes[] = {"SWP", "SPW.", "SPW..", "", "PWS", "PW....S", ".WS", "..WS"};
        for (int i = 0; i < 5; ++i)
            QTest::addRow("order %d", i) << false << i << QString::fromLatin1(orders[i]);
        for (int i = 0; i < 8; ++i)
            QTest::addRow("mix %d", i) << true << i << QString::fromLatin1(mixes[i]);
    }
    void tables()
    {
        QFETCH(bool, mix);
        QFETCH(int, number);
        QFETCH(QString, pattern);
        Rnd rnd(5);
        const Morphemes parts{u"1"_s, u"2"_s, u"3"_s};
        const QString word = mix ? scramble::mixed(parts, number, rnd) : scramble::inOrder(parts, number);
        pattern.replace(u'P', u'1').replace(u'W', u'2').replace(u'S', u'3').replace(u"."_s, u"[A-Za-z]"_s);
        QVERIFY2(QRegularExpression(u"\\A"_s + pattern + u"\\z"_s).match(word).hasMatch(), qPrintable(word));
    }

    void randomLetters()
    {
        Rnd rnd(1);
        const QString letters = scramble::CreateRandomString(5000, rnd);
        QVERIFY(!letters.contains(QRegularExpression(u"[^A-Za-z]"_s)));
        QCOMPARE(std::set(letters.begin(), letters.end()).size(), 52u);
        QCOMPARE(letters.size(), 5000);
        QVERIFY(scramble::CreateRandomString(0, rnd).isEmpty() &&
                scramble::CreateRandomString(-7, rnd).isEmpty());
    }

    void aScrambleIsAShakenRealWord()
    {
        Window w;
        QSignalSpy retyping(&w.r.maker, &WordMaker::retypingToEnd);
        w.lists.PseudoWordList.add(u"alt"_s);
        w.r.maker.MakeMorphemScramble(6, w.view);
        QCOMPARE(w.lists.PseudoWordList.count(), 6);
        const QStringList shaken{u"unglaufver"_s, u"ungverlauf"_s, u"laufverung"_s, u"laufungver"_s,
                                 u"erhausbe"_s,   u"erbehaus"_s,   u"hausbeer"_s,   u"hauserbe"_s};
        for (const QString &word : w.lists.PseudoWordList.rows())
            QVERIFY2(shaken.contains(word), qPrintable(word));
        QCOMPARE(w.view.told.last(), u"6 Schüttelwörter vorbereitet"_s);
        QCOMPARE(w.view.maximum, 6);
        QCOMPARE(w.view.open, 0);
        QCOMPARE(retyping.size(), 0);
    }

    /// The word in proper order that stands in the list already is not taken again.
    void aWordOfTheListIsNotScrambled()
    {
        Window w;
        w.lists.PseudoWordList.add(u"VERLAUFUNG"_s);
        collectMorphemes(w.r.store.tiles(), w.lists);
        for (int round = 0; round < 500; ++round)
            scramble::tryScramble(w.lists, w.r.tests, w.t.rnd);
        for (const QString &word : w.lists.PseudoWordList.rows())
            QVERIFY2(!word.contains(u"lauf"_s), qPrintable(word));
        QVERIFY(w.lists.PseudoWordList.count() > 10);
    }

    void letterMixes_data()
    {
        columns<QString, int>("Text4", "shortest");
        QTest::newRow("length") << u" 30 "_s << 30;
        QTest::newRow("shorter than the words") << u"3"_s << 5;
        QTest::newRow("no number") << u"viele"_s << 5;
        QTest::newRow("beyond all bounds") << u"99999999999999999999"_s << 1000;
    }
    void letterMixes()
    {
        QFETCH(QString, Text4);
        QFETCH(int, shortest);
        Window w;
        w.r.maker.MakeLetterMix(60, Text4, w.view);
        QCOMPARE(w.lists.PseudoWordList.count(), 60);
        for (const QString &word : w.lists.PseudoWordList.rows()) {
            QVERIFY2(word.contains(u"haus"_s) || word.contains(u"lauf"_s), qPrintable(word));
            QVERIFY2(word.size() >= shortest && word.size() <= std::max(shortest, 4 + 8 + 8 + 4),
                     qPrintable(word));
        }
        QCOMPARE(w.lists.PrefixReTypeList.count(), 2);
        QCOMPARE(w.lists.SuffixReTypeList.count(), 2); // "er" and "ER" are one
        for (const WordStore *affixes : {&w.lists.PrefixReTypeList, &w.lists.SuffixReTypeList})
            for (const QString &affix : affixes->rows())
                QVERIFY2(QRegularExpression(u"\\A[A-Za-z]{1,8}\\z"_s).match(affix).hasMatch(),
                         qPrintable(affix));
        QCOMPARE(w.view.told.last(), u"60 zufällige Buchstaben vorbereitet"_s);
        QCOMPARE(w.view.maximum, 10);
    }

    /// There is deliberately no test for duplicates.
    void mixesMayComeTwice()
    {
        Window w;
        w.lists.WortelReTypeList.add(u"haus"_s);
        for (int round = 0; round < 40; ++round)
            scramble::tryLetterMix(w.lists, 0, w.t.rnd);
        QVERIFY(w.lists.PseudoWordList.rows().count(u"haus"_s) > 1);
    }

    void aCancelEndsRetypingToo_data()
    {
        QTest::addColumn<bool>("mix");
        QTest::newRow("scramble") << false;
        QTest::newRow("mix") << true;
    }
    void aCancelEndsRetypingToo()
    {
        QFETCH(bool, mix);
        Window w;
        w.play.startRetyping(WordSource::PseudoWords);
        w.t.pump.waiting = true;
        w.t.pump.onYield = [&w] {
            if (w.t.pump.yields == 50)
                w.gate.cancelWork();
        };
        if (mix)
            w.r.maker.MakeLetterMix(20000, u"20"_s, w.view);
        else
            w.r.maker.MakeMorphemScramble(20000, w.view);
        QVERIFY(!w.lists.PseudoWordList.isEmpty() && w.lists.PseudoWordList.count() < 60);
        QVERIFY(!w.play.RetypeActive() && !w.play.RetypePseudoWords());
        QVERIFY(w.gate.isFree());
        QCOMPARE(w.view.open, 0);
    }
};

WORTEL_TEST(ScrambledWordsTest)
#include "tst_scrambled_words.moc"
