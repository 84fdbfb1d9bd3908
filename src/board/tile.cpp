// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/tile.h"

namespace {
constexpr int textOffsetX = 2;
constexpr int textOffsetY = 5;
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
    right_ = xLeft_ + extent_;
    bottom_ = yTop_ + height;
}

void cWortel::Draw(TileSurface &surface) const { drawWith(surface, BGColor, colours::white, TxtColor); }

void cWortel::DrawBAndW(TileSurface &surface) const
{
    drawWith(surface, colours::white, colours::black, colours::black);
}

void cWortel::drawWith(TileSurface &surface, Colour fill, Colour outline, Colour text) const
{
    if (extent_ == 0)
        return;
    surface.fillBox(xLeft_, yTop_, right_, bottom_, fill);
    if (!Selected)
        surface.outlineBox(xLeft_, yTop_, right_, bottom_, outline);
    surface.printText(xLeft_ + textOffsetX, yTop_ + textOffsetY, txt, text);
}
