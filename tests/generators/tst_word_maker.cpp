// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "generators/word_maker.h"
#include "language/word_tests.h"
#include "platform/modes.h"
#include "platform/word_lists.h"
#include "support/columns.h"
#include "support/plain_board.h"
#include "support/registry.h"
#include "support/test_ground.h"
#include "widgets/click_label.h"
#include "widgets/dropper.h"
#include "widgets/main_controls.h"
#include "widgets/press_button.h"
#include "widgets/progress_bar.h"

#include <QSignalSpy>
#include <QtTest>

using namespace Qt::StringLiterals;

/// The runs of the generators in the window: progress, cancel, and what they leave behind.
class WordMakerTest : public QObject
{
    Q_OBJECT

private:
    enum Run { RealWords, NonsenseWords, RealForKernling, NonsenseForKernling };

    struct Window
    {
        TestGround t;
        QWidget form;
        MainControls c = makeMainControls(&form);
        GameProgressBar fillProgress{&form};
        ClickLabel label9{&form};
        WordLists lists;
        Modes modes;
        WordTests tests{lists, t.options};
        PlainBoard board{t.ground};
        WordMaker maker{t.ground, c, lists, modes, tests, board.tiles};

        Window()
        {
            fillProgress.hide();
            label9.hide();
            board.lay(u"haus"_s, colours::wortelBack);
            board.lay(u"lauf"_s, colours::wortelBack);
            board.lay(u"ver"_s, colours::prefixBack);
            board.lay(u"er"_s, colours::suffixBack);
            board.lay(u"ung"_s, colours::suffixBack);
            lists.LexiconList.addAll({u"Verlaufung"_s, u"verhauser"_s, u"Haus"_s});
            t.options.setBox(Setting::InitCapPseudoSuffixes, 1);
        }

        void run(Run which, int count)
        {
            switch (which) {
            case RealWords:
                return maker.MakeDummyWordsInDic(count);
            case NonsenseWords:
                return maker.MakePseudoWordsTorvin(count);
            case RealForKernling:
                return maker.MakeWordsForKernling(count, {&fillProgress, &label9});
            case NonsenseForKernling:
                return maker.MakePseudoWordsForKernling(count, {&fillProgress, &label9});
            }
        }

        /// Acts in the `nth` yield, as a user would, and once only.
        void inYield(int nth, const std::function<void()> &act)
        {
            t.pump.waiting = true;
            t.pump.onYield = [this, nth, act] {
                if (t.pump.yields == nth)
                    act();
            };
        }

        /// Every control's state in one text.
        QString states() const
        {
            QStringList all;
            for (const QWidget *widget : form.findChildren<QWidget *>())
                if (widget != c.GameProgress)
                    all.append(widget->objectName() + (widget->isEnabled() ? u" on"_s : u" off"_s) +
                               (widget->isHidden() ? u" hidden"_s : QString()));
            return all.join(u'\n');
        }
    };

    static bool isReal(Run which) { return which == RealWords || which == RealForKernling; }

    static void addRuns()
    {
        QTest::addColumn<int>("which");
        QTest::newRow("real words") << int(RealWords);
        QTest::newRow("nonsense words") << int(NonsenseWords);
        QTest::newRow("real words for the stem game") << int(RealForKernling);
        QTest::newRow("nonsense words for the stem game") << int(NonsenseForKernling);
    }

private slots:
    void aWholeRun_data() { addRuns(); }
    void aWholeRun()
    {
        QFETCH(int, which);
        const Run run = static_cast<Run>(which);
        Window w;
        w.lists.CorrectWordList.add(u"alt"_s);
        w.lists.PseudoWordList.add(u"alt"_s);
        const QString before = w.states();
        bool locked = false;
        w.inYield(2, [&] { locked = !w.c.Command2->isEnabled() && !w.c.Dropper1->isEnabled(); });
        QSignalSpy cleared(&w.maker, &WordMaker::stripToClear);
        w.run(run, 2);

        const bool kernling = run == RealForKernling || run == NonsenseForKernling;
        QCOMPARE(w.states(), before);
        QCOMPARE(locked, !kernling);
        QCOMPARE(cleared.size(), run == RealForKernling ? 0 : 1);
        QCOMPARE(w.c.GameProgress->isHidden(), kernling);
        QVERIFY(w.fillProgress.isHidden());
        QCOMPARE(QGuiApplication::overrideCursor(), nullptr);
        if (isReal(run))
            QCOMPARE(w.lists.CorrectWordList.rows(), QStringList({u"verhauser"_s, u"Verlaufung"_s}));
        else
            QCOMPARE(w.lists.PseudoWordList.count(), 2);
        if (run == RealWords) {
            QCOMPARE(w.c.GameProgress->Caption(), u"2 Wörter vorbereitet"_s);
            QCOMPARE(w.c.GameProgress->value(), 0);
            QCOMPARE(w.c.GameProgress->maximum(), 2);
        } else if (run == NonsenseWords) {
            QCOMPARE(w.c.GameProgress->Caption(), u"2 Unsinnswörter vorbereitet"_s);
        }
        QVERIFY(w.t.ok());
    }

    /// A word that the sweep takes out again does not count, so that the run goes on.
    void theSweepsWordsAreMadeUpFor()
    {
        for (int round = 0; round < 20; ++round) {
            Window w;
            w.board.lay(u"fass"_s, colours::wortelBack);
            w.board.lay(u"biss"_s, colours::wortelBack);
            w.board.lay(u"t"_s, colours::suffixBack);
            w.t.rnd = Rnd(static_cast<quint64>(round));
            w.run(NonsenseWords, 5);
            QCOMPARE(w.lists.PseudoWordList.count(), 5);
            QCOMPARE(w.c.GameProgress->Caption(), u"5 Unsinnswörter vorbereitet"_s);
            for (const QString &word : w.lists.PseudoWordList.rows())
                QVERIFY2(!word.endsWith(u"sst"_s), qPrintable(word));
        }
    }

    /// A board or a dictionary that cannot yield the words keeps the loop running until the cancel, and no
    /// control stays locked.
    void cancelEndsASearchThatCannotEnd_data()
    {
        columns<int, QString>("which", "lack");
        for (const QString &lack : {u"no tiles"_s, u"no dictionary"_s, u"too many wanted"_s})
            for (const Run run : {RealWords, NonsenseWords, RealForKernling, NonsenseForKernling})
                QTest::addRow("%s %d", qPrintable(lack), int(run)) << int(run) << lack;
    }
    void cancelEndsASearchThatCannotEnd()
    {
        QFETCH(int, which);
        QFETCH(QString, lack);
        const Run run = static_cast<Run>(which);
        Window w;
        if (lack == u"no tiles"_s)
            w.board.tiles.takeAll();
        if (lack == u"no dictionary"_s)
            w.lists.LexiconList.clear();
        w.modes.RetypeActive = true;
        w.modes.RetypeRandomWords = true;
        w.c.Check3->setEnabled(false);
        w.c.Option2[1]->setEnabled(false);
        const bool kernling = run == RealForKernling || run == NonsenseForKernling;
        w.inYield(500, [&] { (kernling ? w.modes.KernlingCancel : w.modes.CancelPreparing) = true; });
        QSignalSpy modesCleared(&w.maker, &WordMaker::modesCleared);
        w.run(run, 1000);

        QVERIFY(w.t.pump.yields >= 500);
        QVERIFY(w.c.Command2->isEnabled() && w.c.Dropper1->isEnabled() && w.c.Check2->isEnabled());
        QCOMPARE(w.c.Check3->isEnabled(), run != RealForKernling);
        QCOMPARE(w.c.Option2[1]->isEnabled(), run != RealForKernling);
        QVERIFY(!w.modes.KernlingCancel);
        QCOMPARE(w.modes.CancelPreparing, run == RealWords); // only there the caller asks it
        QCOMPARE(w.modes.RetypeActive, run != RealWords);
        QCOMPARE(w.modes.RetypeRandomWords, run != RealWords);
        QCOMPARE(modesCleared.size(), run == RealWords ? 1 : 0);
        QCOMPARE(QGuiApplication::overrideCursor(), nullptr);
    }

    void aCancelKeepsWhatWasFound()
    {
        Window w;
        w.inYield(500, [&] { w.modes.KernlingCancel = true; });
        w.run(RealForKernling, 3);
        QCOMPARE(w.lists.CorrectWordList.rows(),
                 QStringList({u"verhauser"_s, u"Verlaufung"_s})); // in proper case
        w.t.pump.yields = 0;
        w.inYield(500, [&] { w.modes.CancelPreparing = true; });
        w.run(RealWords, 3);
        QCOMPARE(w.lists.CorrectWordList.count(), 2);
        w.t.pump.yields = 0;
        w.modes.RetypeActive = true;
        w.inYield(500, [&] { w.modes.CancelPreparing = w.modes.KernlingCancel = true; });
        w.run(RealForKernling, 3);
        QVERIFY(!w.modes.RetypeActive);
        QVERIFY2(w.fillProgress.isHidden(), "the main cancel abandons the stem game, too");
    }

    void oddAmounts()
    {
        Window w;
        w.board.tiles.takeAll();
        const QString stem(500, u'a');
        w.board.lay(stem, colours::wortelBack);
        w.lists.LexiconList.add(stem.toUpper());
        w.run(RealWords, 1); // a stem alone is a word of its own
        QCOMPARE(w.lists.CorrectWordList.rows(), QStringList(stem.toUpper()));
        w.run(RealWords, 0);
        QVERIFY(w.lists.CorrectWordList.isEmpty());
        QCOMPARE(w.c.GameProgress->maximum(), 1);
    }
};

WORTEL_TEST(WordMakerTest)
#include "tst_word_maker.moc"
