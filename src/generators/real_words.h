// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class Rnd;
class WordTests;
struct WordLists;

/// One round of the search for real words: draws a candidate from the retype lists and adds it to
/// `CorrectWordList` if the dictionary holds it and the list does not. True if it was added. Costs constant
/// time, however long the dictionary is.
bool tryRealWord(WordLists &lists, const WordTests &tests, Rnd &rnd);

/// Gives every row of `CorrectWordList` the dictionary's spelling, at its place.
void properCaseAll(WordLists &lists, const WordTests &tests);
