// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "board/tiles/places.h"

#include <QObject>

#include <optional>

class BoardNews;
class Canvas;
class Placement;
class TileStore;
class Work;
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
              Canvas &canvas, Placement &placement, BoardNews &news);

    /// The absolute value of `Text1`, rounded, for tiles of that kind. What is no number, or one above 16
    /// bits, is told to the user and gives nothing.
    std::optional<int> countInText1(const TileKind &kind = wortelKind);

    /// The first board: `count` Wortel tiles and, above `bandTop` (pixels), the affix rows. The window is
    /// still hidden, so that nobody could stop it: it ends by itself, and returns how many Wortel tiles found
    /// room.
    int layFirstBoard(int count, int bandTop);
    /// Adds random Wortel tiles, with no test for overlap.
    void AddRandomWortel(int count);
    /// One of them.
    void addOneWortel();
    /// The fresh board, from the current lists. False, with a notice, if the number is none.
    bool Refill();
    /// The same with `n` Wortel tiles at random places. 0 empties the board, affix rows too; a negative `n`
    /// only refreshes the filter.
    void RefillWithSpecNum(int n);
    /// `Refill` for a board of the vowels: `n` Wortel tiles from the current list; the affixes stay.
    void Refill_Vokals(int n);
    /// A left press on the button "Wortel": `Refill` with its sound and the commit.
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

private:
    void shuffleKind(const char *procedure, const TileKind &kind, bool lowerCase);
    std::unique_ptr<cWortel> randomTile(const places::Draw &draw, const QString &text) const;
    void layWortels(int n, bool wholeList, TileList &fresh, Work &work, int bound);
    void layAffixRows(TileList &fresh, int bandTop);
    void showFresh(TileList fresh, int filter);
    QString randomStem();

    Ground &ground_;
    const MainControls &controls_;
    const WordLists &lists_;
    const AffixHomes &homes_;
    Canvas &canvas_;
    Placement &placement_;
    BoardNews &news_;
    TileStore &store_;
};
