// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "board/tiles/tile_store.h"

#include <QString>

class Rnd;
class WordStore;
struct WordLists;

/// The three parts of a candidate, in the order in which they are drawn and joined.
struct Morphemes
{
    QString Prefix;
    QString Stem;
    QString Suffix;

    QString joined() const { return Prefix + Stem + Suffix; }
};

/// Fills the three retype lists with the distinct texts (case ignored) of the tiles, each by its colour. All
/// tiles count, whatever the filter shows.
void collectMorphemes(const TileList &tiles, WordLists &lists);
/// The same with every tile's text, doubles too: what lies there often is drawn often.
void collectAllMorphemes(const TileList &tiles, WordLists &lists);
/// The same with the rules of the nonsense words: the stem list `listName` "UNG HEIT KEIT SCHAFT NIS TUM"
/// allows no prefix and only noun suffixes; with any other the suffixes "s" and "er" are left out.
void collectNonsenseMorphemes(const TileList &tiles, const QString &listName, WordLists &lists);

/// A row of `store`, each equally likely; the empty string if there is none.
QString drawRow(const WordStore &store, Rnd &rnd);
/// One prefix, one stem and one suffix of the retype lists.
Morphemes drawMorphemes(const WordLists &lists, Rnd &rnd);
