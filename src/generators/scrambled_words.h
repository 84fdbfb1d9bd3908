// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generators/morphemes.h"

class WordTests;

/// The distractors of the stem game that are no words: tiles in the wrong order, and stems among random
/// letters. Both fill `PseudoWordList`.
namespace scramble {

/// `Length` letters, each one of A to Z and a to z; none for a length below 1.
QString CreateRandomString(int Length, Rnd &rnd);

/// The orders of a scramble, and the words of a letter mix. A draw reaches `drawnOrders` and `drawnMixes`
/// rows; the last row of each table is deliberately never reached.
inline constexpr int drawnOrders = 4;
inline constexpr int drawnMixes = 7;
/// The parts in the order of row `number`, 0 to 4.
QString inOrder(const Morphemes &parts, int number);
/// The word of row `number`, 0 to 7. Row 3 gives the empty word.
QString mixed(const Morphemes &parts, int number, Rnd &rnd);

/// Replaces each row of the prefix and suffix retype lists by 1 to 8 random letters.
void replaceAffixes(WordLists &lists, Rnd &rnd);

/// One round: draws the parts of a word of the dictionary and adds them in another order, unless the word
/// itself stands in the list. True if a word was added.
bool tryScramble(WordLists &lists, const WordTests &tests, Rnd &rnd);
/// One round: adds a mix, filled up with random letters to `wordLength` characters (at most
/// `longestMix`). The same word may be added twice. False for the row that gives none.
bool tryLetterMix(WordLists &lists, int wordLength, Rnd &rnd);

inline constexpr int longestMix = 1000;

} // namespace scramble
