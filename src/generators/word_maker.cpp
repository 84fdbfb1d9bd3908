// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "generators/word_maker.h"

#include "board/tiles/tile_store.h"
#include "generators/morphemes.h"
#include "generators/nonsense_words.h"
#include "generators/real_words.h"
#include "generators/scrambled_words.h"
#include "language/word_tests.h"
#include "platform/files.h"
#include "platform/ground.h"
#include "platform/options.h"
#include "platform/procedure.h"
#include "platform/text.h"
#include "platform/word_lists.h"
#include "platform/work.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int mixMaximum = 10; ///< of the bar, however many mixes are wanted

WorkPlan planFor(int wordCount)
{
    return {WorkPlan::Bar | WorkPlan::Cancel | WorkPlan::Words, std::max(1, wordCount)};
}

} // namespace

WordMaker::WordMaker(Ground &ground, WordLists &lists, const WordTests &tests, const TileStore &tiles,
                     QObject *parent)
    : QObject(parent)
    , ground_(ground)
    , lists_(lists)
    , tests_(tests)
    , tiles_(tiles)
{}

bool WordMaker::MakeDummyWordsInDic(int WordCount)
{
    Procedure step{ground_.log, "MakeDummyWordsInDic", "frmMain"};
    Work work(ground_, planFor(WordCount));
    step([&] { lists_.CorrectWordList.clear(); });
    step([&] { emit stripToClear(); });
    step([&] { searchRealWords(WordCount, work); });
    if (work.isCancelled())
        return false;
    step([&] { properCaseAll(lists_, tests_); });
    return true;
}

void WordMaker::MakeWordsForKernling(int WordCount, WorkView &view)
{
    Procedure step{ground_.log, "MakeWordsForKernling", "FrmKernling"};
    Work work(ground_, planFor(WordCount), &view);
    step([&] { lists_.CorrectWordList.clear(); });
    step([&] { searchRealWords(WordCount, work); });
    step([&] { properCaseAll(lists_, tests_); });
}

void WordMaker::searchRealWords(int wordCount, Work &work)
{
    collectMorphemes(tiles_.tiles(), lists_);
    work.appear();
    int found = 0;
    while (found != wordCount && !work.isCancelled()) {
        if (tryRealWord(lists_, tests_, ground_.rnd)) {
            ++found;
            work.tell(QString::number(lists_.CorrectWordList.count()) + u" Wörter vorbereitet"_s);
        }
        work.goesOn();
    }
}

void WordMaker::MakePseudoWordsTorvin(int WordCount)
{
    Work work(ground_, planFor(WordCount));
    makeNonsenseWords("MakePseudoWordsTorvin", WordCount, work);
}

void WordMaker::MakePseudoWordsForKernling(int WordCount, WorkView &view)
{
    Work work(ground_, planFor(WordCount), &view);
    makeNonsenseWords("MakePseudoWordsForKernling", WordCount, work);
}

void WordMaker::makeNonsenseWords(const char *procedure, int wordCount, Work &work)
{
    Procedure step{ground_.log, procedure, "frmMain"};
    step([&] { lists_.PseudoWordList.clear(); });
    step([&] { emit stripToClear(); });
    step([&] { collectNonsenseMorphemes(tiles_.tiles(), listBaseName(lists_.CurrentWortelFile), lists_); });
    step([&] { searchNonsenseWords(wordCount, work); });
    work.forgetCancel();
}

void WordMaker::searchNonsenseWords(int wordCount, Work &work)
{
    nonsense::Generator generator(lists_, tests_, ground_.rnd,
                                  ground_.options.box(Setting::InitCapPseudoSuffixes));
    const auto showCount = [&] {
        work.tell(QString::number(lists_.PseudoWordList.count()) + u" Unsinnswörter vorbereitet"_s);
    };
    work.appear();
    int found = 0;
    while (found != wordCount && !work.isCancelled()) {
        if (generator.tryWord()) {
            ++found;
            showCount();
        }
        work.goesOn();
        if (const int removed = generator.sweep(); removed > 0) {
            found -= removed;
            showCount();
        }
    }
}

void WordMaker::MakeMorphemScramble(int WordCount, WorkView &view)
{
    Procedure step{ground_.log, "MakeMorphemScramble", "FrmKernling"};
    Work work(ground_, planFor(WordCount), &view);
    step([&] { lists_.PseudoWordList.clear(); });
    step([&] { collectMorphemes(tiles_.tiles(), lists_); });
    step([&] {
        searchScrambles(
            WordCount, u" Schüttelwörter vorbereitet"_s,
            [&] { return scramble::tryScramble(lists_, tests_, ground_.rnd); }, work);
    });
}

void WordMaker::MakeLetterMix(int WordCount, const QString &Text4, WorkView &view)
{
    Procedure step{ground_.log, "MakeLetterMix", "FrmKernling"};
    Work work(ground_, planFor(mixMaximum), &view);
    const auto wordLength = static_cast<int>(std::clamp(Val(Text4), 0.0, double(scramble::longestMix)));
    step([&] { lists_.PseudoWordList.clear(); });
    step([&] { collectMorphemes(tiles_.tiles(), lists_); });
    step([&] { scramble::replaceAffixes(lists_, ground_.rnd); });
    step([&] {
        searchScrambles(
            WordCount, u" zufällige Buchstaben vorbereitet"_s,
            [&] { return scramble::tryLetterMix(lists_, wordLength, ground_.rnd); }, work);
    });
}

/// `made` is what the caption says behind the count.
void WordMaker::searchScrambles(int wordCount, const QString &made, const std::function<bool()> &tryOne,
                                Work &work)
{
    work.appear();
    int found = 0;
    while (found != wordCount && !work.isCancelled()) {
        if (tryOne()) {
            ++found;
            work.tell(QString::number(lists_.PseudoWordList.count()) + made);
        }
        work.goesOn();
    }
    if (work.isCancelled())
        emit retypingToEnd();
}
