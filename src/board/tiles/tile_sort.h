// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "board/tiles/tile_store.h"

#include <QStringList>

/// The rules of the sorting commands, without a window.
namespace tile_sort {

/// The texts in ascending order of their character codes, equal ones in their old order.
QStringList sorted(QStringList texts);

/// Gives the sorted texts of all tiles that `affected` names to these tiles in store order: places stay,
/// texts move. With `removeDuplicates` a tile whose text came before, case ignored, is dropped.
void sortTexts(TileList &tiles, bool (*affected)(const cWortel &), bool removeDuplicates);

} // namespace tile_sort
