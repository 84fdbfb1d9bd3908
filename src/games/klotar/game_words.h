// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "board/tiles/tile_store.h"

#include <QString>

class Rnd;
class WordTests;
struct WordLists;

/// The points of a game, one for each letter of the collected words: neither the level nor the time that is
/// left counts. The words go to the word list, which is emptied first.
int GetPoints(WordLists &lists);

/// A word of the dictionary, in its spelling, that the tiles can make and the word list does not hold yet:
/// the first of at most 1000 random candidates, or the empty string.
QString findWordHint(const TileList &tiles, WordLists &lists, const WordTests &tests, Rnd &rnd);
