// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "support/test_house.h"

/// The house as the tests of the board look at it.
struct TestBoard : TestHouse
{
    explicit TestBoard(quint64 seed = 1, const QSize &size = {632, 573})
        : TestHouse(seed, size)
    {}

    AffixHomes &homes = r.homes;
    OptTypes *optTypes = &r.optTypes;
    FormMeasures *measures = &r.measures;
    CanvasSurface *surface = &r.surface;
    TileStore *store = &r.store;
    Canvas *canvas = &r.canvas;
    Placement *placement = &r.placement;
    Arrangement *arrangement = &r.arrangement;
    BulkTiles *bulk = &r.bulk;
};

inline constexpr const TileKind &wortel = wortelKind;
inline constexpr const TileKind &prefix = prefixKind;
inline constexpr const TileKind &suffix = suffixKind;
