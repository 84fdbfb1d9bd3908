// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "board/tiles/tile.h"

#include <QSize>

/// What is said of a tile.
namespace spoken_tile {

/// Its text and kind: "ver, Präfix".
QString name(const cWortel &tile);
/// Where in a picture of that size (pixels) the middle of its box lies, by ninths: "oben links".
QString place(const QRect &box, const QSize &picture);

} // namespace spoken_tile
