// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "board/tiles/tile_kind.h"

#include <QString>

#include <array>

/// One row a kind of game. The rows stand in the order of the options `OptMorphemeType(0)` to `(2)`.
struct MemoryKind
{
    const TileKind *tile;     ///< its colours are those of cards, window and side panel
    const char16_t *label;    ///< names the kind's list in settings and titles
    const char16_t *caption;  ///< of the window
    const char16_t *listName; ///< of `Label2`; nullptr: the name of the stem list
    // Numbers of the menu's commands
    int startId;
    int showId;
    int resetId;
};

// clang-format off
inline constexpr std::array<MemoryKind, 3> memoryKinds{{
    {&prefixKind, u"Präfixe", u"Präfix-Memory", u"Präfixe",    150, 2904, 2905},
    {&wortelKind, u"Wortel",  u"Wortel-Memory", nullptr,       250, 2902, 2903},
    {&suffixKind, u"Suffixe", u"Suffix-Memory", u"Suffixe...", 350, 2906, 2907},
}};
// clang-format on

inline constexpr const MemoryKind &prefixMemory = memoryKinds[0];
inline constexpr const MemoryKind &wortelMemory = memoryKinds[1];
inline constexpr const MemoryKind &suffixMemory = memoryKinds[2];

inline bool isWortel(const MemoryKind &kind) { return &kind == &wortelMemory; }
