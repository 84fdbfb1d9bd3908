// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "board/tiles/tile_kind.h"

#include <QObject>

#include <optional>

class Canvas;
class Placement;
class TileStore;
struct AffixHomes;
struct Ground;
struct MainControls;
struct WordLists;

/// The commands that change many tiles at once: filling the board anew, adding random tiles, replacing and
/// shuffling texts, capitals.
class BulkTiles : public QObject
{
    Q_OBJECT

public:
    BulkTiles(Ground &ground, const MainControls &controls, const WordLists &lists, const AffixHomes &homes,
              Canvas &canvas, Placement &placement);

    /// The absolute value of `Text1`, rounded. What is no number, or one above 16 bits, is told to the user
    /// and gives nothing.
    std::optional<int> countInText1();

    /// Adds random Wortel tiles, with no test for overlap.
    void AddRandomWortel(int count);
    /// The fresh board, from the current lists.
    void Refill();
    /// The same with `n` Wortel tiles at random places. 0 empties the board, affix rows too; a negative `n`
    /// only refreshes the filter.
    void RefillWithSpecNum(int n);
    /// A left press on the button "Wortel": `Refill` with its sound and the commit, the button's group
    /// disabled meanwhile.
    void Check2_LeftPress();

    /// New random texts for all Wortel tiles; places and count stay.
    void ReplaceAllWortel();
    /// Exchange the texts among the tiles of one kind. Wortel texts become lower case only if
    /// `LCaseOnShuffle` is on, affixes always.
    void ShuffleAllWortel();
    void ShuffleAllPrefix();
    void ShuffleAllSuffix();
    /// All three kinds, each among its own, texts as they are.
    void ShuffleAllMorpheme();
    /// Initial capitals for prefixes or Wortel tiles. Suffix tiles of that colour would be dropped, which is
    /// why no menu offers it for them.
    void InitCapAffix(Colour colour);

signals:
    /// The button "Wortel" has refilled the board: undo and backup take their snapshot now.
    void commitWanted();

private:
    void shuffleKind(const char *procedure, const TileKind &kind, bool lowerCase);
    void refillWortel(int n, bool inListOrder);
    void drawWortel(const QString &text, int x, int y);
    void drawAffixRows();
    void selectTwice(int filter);
    QString randomStem();
    void yieldIfInput();

    Ground &ground_;
    const MainControls &controls_;
    const WordLists &lists_;
    const AffixHomes &homes_;
    Canvas &canvas_;
    Placement &placement_;
    TileStore &store_;
};
