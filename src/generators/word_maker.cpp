// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "generators/word_maker.h"

#include "board/tiles/tile_store.h"
#include "generators/nonsense_words.h"
#include "generators/real_words.h"
#include "language/word_tests.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/ground.h"
#include "platform/modes.h"
#include "platform/options.h"
#include "platform/procedure.h"
#include "platform/word_lists.h"
#include "widgets/click_label.h"
#include "widgets/guards.h"
#include "widgets/main_controls.h"
#include "widgets/preparing.h"
#include "widgets/press_button.h"
#include "widgets/progress_bar.h"

#include <algorithm>

using namespace Qt::StringLiterals;

/// Where a run shows itself and which flag stops it.
struct WordMaker::Stage
{
    const char *realWords; ///< procedure names
    const char *nonsenseWords;
    GameProgressBar *progress;
    QWidget *cancelLabel;
    bool Modes::*cancel;
    bool isKernling;
};

WordMaker::WordMaker(Ground &ground, const MainControls &controls, WordLists &lists, Modes &modes,
                     const WordTests &tests, const TileStore &tiles, QObject *parent)
    : QObject(parent)
    , ground_(ground)
    , controls_(controls)
    , lists_(lists)
    , modes_(modes)
    , tests_(tests)
    , tiles_(tiles)
{}

WordMaker::Stage WordMaker::mainStage() const
{
    return {"MakeDummyWordsInDic", "MakePseudoWordsTorvin", controls_.GameProgress,
            controls_.Label4,      &Modes::CancelPreparing, false};
}

WordMaker::Stage WordMaker::kernlingStage(const KernlingStage &stage) const
{
    return {"MakeWordsForKernling", "MakePseudoWordsForKernling", stage.FillProgress,
            stage.Label9,           &Modes::KernlingCancel,       true};
}

void WordMaker::MakeDummyWordsInDic(int WordCount) { makeRealWords(WordCount, mainStage()); }
void WordMaker::MakePseudoWordsTorvin(int WordCount) { makeNonsenseWords(WordCount, mainStage()); }

void WordMaker::MakeWordsForKernling(int WordCount, const KernlingStage &stage)
{
    makeRealWords(WordCount, kernlingStage(stage));
}

void WordMaker::MakePseudoWordsForKernling(int WordCount, const KernlingStage &stage)
{
    makeNonsenseWords(WordCount, kernlingStage(stage));
}

void WordMaker::makeRealWords(int wordCount, const Stage &stage)
{
    Procedure step{ground_.log, stage.realWords, "frmMain"};
    const Hourglass hourglass;
    modes_.CancelPreparing = false;
    if (!stage.isKernling)
        ToggleButtonsOnPreparing(controls_, false);
    step([&] { startProgress(wordCount, stage); });
    step([&] { lists_.CorrectWordList.clear(); });
    if (!stage.isKernling)
        step([&] { emit stripToClear(); });
    step([&] { collectMorphemes(tiles_.tiles(), lists_); });
    stage.cancelLabel->show();
    step([&] { searchRealWords(wordCount, stage); });

    // After the stem game's own cancel this flag is down, so that what was found is kept: required.
    if (modes_.CancelPreparing) {
        step([&] { abandonRealWords(stage); });
        return;
    }
    modes_.*stage.cancel = false;
    stage.cancelLabel->hide();
    step([&] { properCaseAll(lists_, tests_); });
    if (stage.isKernling)
        stage.progress->resetAndHide();
    else
        ToggleButtonsOnPreparing(controls_, true);
}

void WordMaker::searchRealWords(int wordCount, const Stage &stage)
{
    int found = 0;
    while (found != wordCount && !(modes_.*stage.cancel)) {
        if (tryRealWord(lists_, tests_, ground_.rnd)) {
            ++found;
            stage.progress->setCaption(QString::number(lists_.CorrectWordList.count()) +
                                       u" Wörter vorbereitet"_s);
        }
        yieldToInput();
    }
}

void WordMaker::abandonRealWords(const Stage &stage)
{
    freeGameTools();
    stage.progress->resetAndHide();
    ground_.pump.yield();
    if (!stage.isKernling)
        ToggleButtonsOnPreparing(controls_, true);
    modes_.RetypeActive = false;
    modes_.clearRetypeSources();
    emit modesCleared();
}

void WordMaker::makeNonsenseWords(int wordCount, const Stage &stage)
{
    Procedure step{ground_.log, stage.nonsenseWords, "frmMain"};
    const Hourglass hourglass;
    modes_.*stage.cancel = false;
    if (!stage.isKernling)
        ToggleButtonsOnPreparing(controls_, false);
    step([&] { startProgress(wordCount, stage); });
    step([&] { lists_.PseudoWordList.clear(); });
    step([&] { emit stripToClear(); });
    step([&] { collectNonsenseMorphemes(tiles_.tiles(), listBaseName(lists_.CurrentWortelFile), lists_); });
    stage.cancelLabel->show();
    step([&] { searchNonsenseWords(wordCount, stage); });

    if (modes_.*stage.cancel)
        freeGameTools();
    modes_.*stage.cancel = false;
    stage.cancelLabel->hide();
    if (stage.isKernling) {
        stage.progress->resetAndHide();
        step([&] { ground_.pump.yield(); });
    } else {
        ToggleButtonsOnPreparing(controls_, true);
    }
}

void WordMaker::searchNonsenseWords(int wordCount, const Stage &stage)
{
    nonsense::Generator generator(lists_, tests_, ground_.rnd,
                                  ground_.options.box(Setting::InitCapPseudoSuffixes));
    const auto showCount = [&] {
        stage.progress->setCaption(QString::number(lists_.PseudoWordList.count()) +
                                   u" Unsinnswörter vorbereitet"_s);
    };
    int found = 0;
    while (found != wordCount && !(modes_.*stage.cancel)) {
        if (generator.tryWord()) {
            ++found;
            showCount();
        }
        yieldToInput();
        if (const int removed = generator.sweep(); removed > 0) {
            found -= removed;
            showCount();
        }
    }
}

void WordMaker::startProgress(int wordCount, const Stage &stage)
{
    stage.progress->setMaximum(std::max(1, wordCount));
    stage.progress->setValue(0);
    stage.progress->setCaption(u"Bitte warten..."_s);
    stage.progress->show();
    ground_.pump.yield();
}

void WordMaker::freeGameTools()
{
    controls_.Check3->setEnabled(true);
    for (PressButton *level : controls_.Option2)
        level->setEnabled(true);
}

/// A cheap question in each round keeps the search fast: the window is served only when it has something to
/// do.
void WordMaker::yieldToInput()
{
    if (ground_.pump.inputWaiting())
        ground_.pump.yield();
}
