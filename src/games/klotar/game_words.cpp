// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/klotar/game_words.h"

#include "generators/morphemes.h"
#include "language/word_tests.h"
#include "platform/word_lists.h"

int GetPoints(WordLists &lists)
{
    int points = 0;
    lists.CorrectWordList.clear();
    for (const QString &word : lists.GameCollectedList.rows()) {
        points += static_cast<int>(word.size());
        lists.CorrectWordList.add(word);
    }
    return points;
}

QString findWordHint(const TileList &tiles, WordLists &lists, const WordTests &tests, Rnd &rnd)
{
    constexpr int tries = 1000;
    collectAllMorphemes(tiles, lists);
    for (int i = 0; i < tries; ++i) {
        const QString candidate = drawMorphemes(lists, rnd).joined();
        if (tests.ChkForDuplicates2(candidate) && !tests.ChkForDuplicates(candidate))
            return tests.ProperCase(candidate);
    }
    return {};
}
