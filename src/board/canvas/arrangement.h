// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "board/tiles/tile_store.h"

#include <QObject>
#include <QString>

class Canvas;
class Placement;
class Work;
struct Ground;

/// The commands that put order on the board: sorting, lining up in columns, spreading without overlap.
class Arrangement : public QObject
{
    Q_OBJECT

public:
    Arrangement(Ground &ground, Canvas &canvas, Placement &placement);

    /// Sorts the texts of the Wortel tiles over their tiles in store order; places stay.
    void SortWortelAscending(bool removeDuplicates);
    /// The same over all kinds in one list.
    void SortMorphemeAscending(bool removeDuplicates);

    /// Places all tiles anew without overlap; `sorted` sorts first and drops duplicates. If it is given up
    /// the remaining tiles are lost from the board.
    void SpreadAllMorpheme(bool sorted);
    /// Places the tiles of that kind anew, as Wortel tiles: the only caller passes Wortel.
    void SpreadMorpheme(Colour colour);

    /// Lays the Wortel tiles out in rows of `ColumnsOnLineUp` columns.
    void LineUpWorteles(bool sort, bool removeDuplicates);
    /// Tile `i` of a line-up, appended to the new tiles. Nothing checks the board's edge.
    void GetLineUpPos(int i, const QString &text, TileList &rebuilt);

private:
    enum class What { Wortel, Everything };
    void sortTiles(const char *procedure, What what, bool removeDuplicates);
    int lineUpNumber(const char *procedure, int (*number)(int, int, int), int i, int space) const;
    void spreadTiles(const TileList &tiles, TileList &laid, Work &work);

    Ground &ground_;
    Canvas &canvas_;
    Placement &placement_;
    TileStore &store_;
};
