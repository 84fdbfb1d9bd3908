// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "board/tiles/tile_store.h"

#include <functional>
#include <memory>

class Canvas;
class Procedure;
struct Ground;

using TilePointer = std::unique_ptr<cWortel>;

/// The skeleton that all bulk commands share: hourglass, freeze, a copy of every tile in store order into a
/// new list as the command says, the new list into the store; then redraw, unfreeze and restore the filter.
/// Board and pointer are released in any case. The store keeps the old tiles until the new list is whole, and
/// for good if the window closes meanwhile.
///
/// `each` gets every tile in turn and the new list so far, and says what becomes of the tile; one that it
/// leaves in the pointer is appended with its width recomputed.
void rebuildBoard(Ground &ground, Canvas &canvas, Procedure &step,
                  const std::function<void(TilePointer &, TileList &)> &each);
