// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "generators/real_words.h"

#include "generators/morphemes.h"
#include "language/word_tests.h"
#include "platform/word_lists.h"

bool tryRealWord(WordLists &lists, const WordTests &tests, Rnd &rnd)
{
    const QString candidate = drawMorphemes(lists, rnd).joined();
    if (!tests.ChkForDuplicates2(candidate) || tests.ChkForDuplicates(candidate))
        return false;
    lists.CorrectWordList.add(candidate);
    return true;
}

void properCaseAll(WordLists &lists, const WordTests &tests)
{
    WordStore &words = lists.CorrectWordList;
    for (int row = 0; row < words.count(); ++row)
        words.replace(row, tests.ProperCase(words.at(row)));
}
