// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "board/tiles/tile.h"

#include <QSize>

/// What is said of a tile.
namespace spoken_tile {

/// Its text and kind: "ver, Präfix".
QString name(const cWortel &tile);
/// Where on a board of that size (pixels) its middle lies, by ninths: "oben links", "in der Mitte".
QString place(const cWortel &tile, const QSize &board);

} // namespace spoken_tile
