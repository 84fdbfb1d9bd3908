// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "board/tiles/tile_store.h"

#include <array>

/// A tile store without a window: it counts in plain texts, draws nowhere, and takes every character for
/// seven pixels wide.
struct PlainBoard : TileCounters, TileFilter, TileSurface, BoardMeasures
{
    explicit PlainBoard(Ground &ground)
        : tiles(ground, *this, *this, *this, *this)
    {}

    std::array<QString, 4> captions;
    int filter = TileFilter::all;
    TileStore tiles;

    /// Lays a tile of that colour at the top left corner, without counting it.
    void lay(const QString &text, Colour back)
    {
        const TileKind *kind = kindOfColour(back);
        tiles.CanvasDrawWortel(0, 0, text, back, kind == nullptr ? colours::black : kind->text);
    }

    QString caption(int index) const override { return captions.at(static_cast<std::size_t>(index)); }
    void setCaption(int index, const QString &text) override
    {
        captions.at(static_cast<std::size_t>(index)) = text;
    }
    int selected() const override { return filter; }
    void select(int index) override { filter = index; }
    void fillBox(int, int, int, int, Colour) override {}
    void outlineBox(int, int, int, int, Colour) override {}
    void printText(int, int, const QString &, Colour) override {}
    void clear() override {}
    int textWidth(const QString &text) const override { return 7 * static_cast<int>(text.size()); }
    int ScaleWidth() const override { return 1280; }
    int ScaleHeight() const override { return 800; }
    int BandTop() const override { return 712; }
};
