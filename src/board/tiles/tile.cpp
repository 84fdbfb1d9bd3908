// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/tiles/tile.h"

#include <algorithm>
#include <limits>

namespace {
constexpr int textOffsetX = 2;
constexpr int textOffsetY = 5;
constexpr int farthest =
    1'000'000; // a tile read from a file may lie anywhere in 32 bits; beyond this no board shows it

int added(int place, int length)
{
    const long long sum = static_cast<long long>(place) + length;
    return static_cast<int>(
        std::clamp<long long>(sum, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

bool isFarOff(int place) { return place > farthest || place < -farthest; }
} // namespace

void cWortel::setXLeft(int x)
{
    xLeft_ = x;
    recalculate();
}

void cWortel::setYTop(int y)
{
    yTop_ = y;
    recalculate();
}

void cWortel::setExtent(int extent)
{
    extent_ = extent;
    recalculate();
}

void cWortel::recalculate()
{
    right_ = added(xLeft_, extent_);
    bottom_ = added(yTop_, height);
}

void cWortel::Draw(TileSurface &surface) const { drawWith(surface, BGColor, colours::white, TxtColor); }

void cWortel::DrawBAndW(TileSurface &surface) const
{
    drawWith(surface, colours::white, colours::black, colours::black);
}

void cWortel::drawWith(TileSurface &surface, Colour fill, Colour outline, Colour text) const
{
    if (extent_ == 0 || isFarOff(xLeft_) || isFarOff(yTop_))
        return;
    surface.fillBox(xLeft_, yTop_, right_, bottom_, fill);
    if (!Selected)
        surface.outlineBox(xLeft_, yTop_, right_, bottom_, outline);
    surface.printText(xLeft_ + textOffsetX, yTop_ + textOffsetY, txt, text);
}
