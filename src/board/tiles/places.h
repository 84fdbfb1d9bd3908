// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "board/tiles/tile_store.h"

class QString;
class Rnd;

/// Where tiles may be put: the overlap test, the random places of each search and the places of a line-up.
/// Everything in pixels.
namespace places {

struct Place
{
    int x = 0;
    int y = 0;
};

/// The size that every search and every test takes a tile to have, whatever its text.
inline constexpr int boxWidth = 38;
inline constexpr int boxHeight = cWortel::height;

/// True if the rectangle shares a pixel with the box of any tile. Both are widened by one pixel to the right
/// and below.
bool checkOverlapInList(const TileList &tiles, int x, int y, int right, int bottom);

/// How one search draws its random places: pixels taken off each draw, and the pixels it is then moved down.
struct Draw
{
    int offsetX;
    int offsetY;
    int down;
};

inline constexpr Draw freeWortel{100, 185, 35};     ///< `PlaceWortelFree`
inline constexpr Draw spreadWortel{100, 155, 35};   ///< `NoWortelCollision2`
inline constexpr Draw firstMorpheme{32, 100, -2};   ///< a probe's first place in `MorphemeCollision`
inline constexpr Draw spreadMorpheme{40, 100, -2};  ///< its further places; y can be -2
inline constexpr Draw refilledWortel{100, 200, 65}; ///< `Refill`
inline constexpr Draw addedWortel{100, 300, 80};    ///< leaves a band of 80 pixels free at the top

/// A random place: abs(Int(Rnd * size - offset)) for both axes of the window, x drawn first. Folded back by
/// the absolute value, so a draw below the offset lands near the left or upper edge.
Place randomPlace(Rnd &rnd, const Draw &draw, const BoardMeasures &window);

/// The place moved up and to the left as far as needed, so that a tile of that width lies above the lower
/// band and within the right edge, with its outline.
Place onBoard(Place place, const BoardMeasures &window, int width);

/// The width of the probe in `MorphemeCollision`, by kind and length of the text.
int probeWidth(Colour kind, const QString &text);

/// Column and row of tile `i` in a line-up of `columns`, in pixels. Throw RuntimeError 11 for 0 columns, 6
/// beyond 16 bits.
int GetLeft(int i, int columns, int horizontalSpace);
int GetTop(int i, int columns, int verticalSpace);

/// What the user is asked when a search has passed its limit: `placed` tiles lie on the board, `limit` tries
/// were allowed. The figure in brackets is shown as it is calculated, also where it makes no sense as a count
/// of tiles.
QString limitQuestion(bool triedAgain, int placed, int limit);

} // namespace places
