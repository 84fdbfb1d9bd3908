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

/// The skeleton that all bulk commands share: hourglass, freeze, every tile out of the store and, in store
/// order, back into it as the command says; then redraw, unfreeze and restore the filter. Board and pointer
/// are released in any case.
///
/// `each` gets every tile in turn and says what becomes of it; a tile that it leaves in the pointer is put
/// back with its width recomputed.
void rebuildBoard(Ground &ground, Canvas &canvas, Procedure &step,
                  const std::function<void(TilePointer &)> &each);
