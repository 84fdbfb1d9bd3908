// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/test_board.h"
#include "support/test_class.h"
#include "support/tool_states.h"

/// The runs of the generators in the window: progress, cancel, and what they leave behind.
class WordMakerTest : public QObject
{
    Q_OBJECT

private:
    struct Window : TestHouse
    {
        Window()
        {
            for (const char *stem : {"haus", "lauf"})
                lay(wortelKind, 10, 50, QLatin1String(stem));
            lay(prefixKind, 10, 10, u"ver"_s);
            for (const char *ending : {"er", "ung"})
                lay(suffixKind, 10, 90, QLatin1String(ending));
            lists.LexiconList.clear();
            lists.LexiconList.addAll({u"Verlaufung"_s, u"verhauser"_s, u"Haus"_s});
            t.options.setBox(Setting::InitCapPseudoSuffixes, 1);
        }

        void run(bool real, int count)
        {
            real ? static_cast<void>(r.maker.MakeDummyWordsInDic(count))
                 : r.maker.MakePseudoWordsTorvin(count);
        }
    };

private slots:
    void aWholeRun_data()
    {
        QTest::addColumn<bool>("real");
        QTest::newRow("real words") << true;
        QTest::newRow("nonsense words") << false;
    }
    void aWholeRun()
    {
        QFETCH(bool, real);
        Window w;
        w.lists.CorrectWordList.add(u"alt"_s);
        w.lists.PseudoWordList.add(u"alt"_s);
        const QStringList before = toolStates(w);
        QStringList told;
        const GameProgressBar *bar = w.controls.GameProgress;
        w.t.pump.waiting = true;
        w.t.pump.onYield = [&] {
            if (!told.contains(bar->Caption()))
                told << bar->Caption();
            QVERIFY(!w.controls.Command2->isEnabled());
            QCOMPARE(bar->maximum(), 2);
        };
        QSignalSpy cleared(&w.r.maker, &WordMaker::stripToClear);
        w.run(real, 2);
        QCOMPARE(firstDifference(before, toolStates(w)), QString());
        QCOMPARE(cleared.size(), 1);
        const QString words = real ? u" Wörter vorbereitet"_s : u" Unsinnswörter vorbereitet"_s;
        QCOMPARE(told, (QStringList{u"Bitte warten..."_s, u"1"_s + words, u"2"_s + words}));
        if (real)
            QCOMPARE(w.lists.CorrectWordList.rows(), QStringList({u"verhauser"_s, u"Verlaufung"_s}));
        else
            QCOMPARE(w.lists.PseudoWordList.count(), 2);
        QCOMPARE(w.trouble(), QString());
    }

    /// A word that the sweep takes out again does not count, so that the run goes on.
    void theSweepsWordsAreMadeUpFor()
    {
        for (int round = 0; round < 20; ++round) {
            Window w;
            w.lay(wortelKind, 10, 50, u"fass"_s);
            w.lay(wortelKind, 10, 50, u"biss"_s);
            w.lay(suffixKind, 10, 90, u"t"_s);
            w.t.rnd = Rnd(static_cast<quint64>(round));
            w.run(false, 5);
            QCOMPARE(w.lists.PseudoWordList.count(), 5);
            for (const QString &word : w.lists.PseudoWordList.rows())
                QVERIFY2(!word.endsWith(u"sst"_s), qPrintable(word));
        }
    }

    /// A board or a dictionary that cannot yield the words keeps the loop running until the cancel. What was
    /// found stays, real words as they were built.
    void cancelEndsASearchThatCannotEnd_data()
    {
        columns<bool, QString>("real", "lack");
        for (const QString &lack : {u"no tiles"_s, u"too many wanted"_s})
            for (const bool real : {true, false})
                QTest::addRow("%s, %s", qPrintable(lack), real ? "real" : "nonsense") << real << lack;
    }
    void cancelEndsASearchThatCannotEnd()
    {
        QFETCH(bool, real);
        QFETCH(QString, lack);
        Window w;
        if (lack == u"no tiles"_s)
            w.r.store.replaceAll({});
        const QStringList before = toolStates(w);
        w.t.pump.waiting = true;
        w.t.pump.onYield = [&w] {
            if (w.t.pump.yields == 500)
                w.gate.cancelWork();
        };
        w.run(real, 1000);
        QVERIFY(w.t.pump.yields >= 500);
        QCOMPARE(firstDifference(before, toolStates(w)), QString());
        if (real && lack == u"too many wanted"_s)
            QCOMPARE(w.lists.CorrectWordList.rows(), QStringList({u"verhauser"_s, u"verlaufung"_s}));
        QVERIFY(w.gate.isFree());
    }
};

WORTEL_TEST(WordMakerTest)
#include "tst_word_maker.moc"
