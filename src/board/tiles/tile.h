// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "board/tiles/tile_kind.h"

#include <QRect>

/// What a tile needs of a drawing surface: it draws itself with these four calls. The board's canvas is one;
/// a test or a printer can be another.
class TileSurface
{
public:
    virtual ~TileSurface() = default;
    /// Fills the box from (left, top) to (right, bottom), both edges inside, as the classic box call does.
    virtual void fillBox(int left, int top, int right, int bottom, Colour colour) = 0;
    /// Outlines the same box, one pixel wide.
    virtual void outlineBox(int left, int top, int right, int bottom, Colour colour) = 0;
    /// Prints `text` with its top left corner at (x, y), in the board's bold font.
    virtual void printText(int x, int y, const QString &text, Colour colour) = 0;
    /// Clears to the back colour or the background picture.
    virtual void clear() = 0;
};

/// A tile of the board: one morpheme. Its height is always 25 pixels, its kind is its `BGColor`. Right and
/// bottom edge follow from the left edge, the top edge and the width.
class cWortel
{
public:
    static constexpr int height = 25;
    /// What the width of a text is widened by to give `Extent`.
    static constexpr int textMargin = 10;

    int xLeft() const { return xLeft_; }
    void setXLeft(int x);
    int yTop() const { return yTop_; }
    void setYTop(int y);
    /// Width in pixels.
    int Extent() const { return extent_; }
    void setExtent(int extent);
    int right() const { return right_; }
    int bottom() const { return bottom_; }
    /// All that it covers, both edges inside.
    QRect box() const { return {QPoint(xLeft_, yTop_), QPoint(right_, bottom_)}; }

    QString txt;
    bool Selected = false; ///< held by the pointer; then it is drawn with no outline
    Colour TxtColor = 0;
    Colour BGColor = 0;

    void Draw(TileSurface &surface) const;
    /// The same in black on white, for monochrome output.
    void DrawBAndW(TileSurface &surface) const;
    /// Strict on all four sides: a point on an edge is outside.
    bool Inside(int x, int y) const { return x > xLeft_ && x < right_ && y > yTop_ && y < bottom_; }

private:
    void recalculate();
    void drawWith(TileSurface &surface, Colour fill, Colour outline, Colour text) const;

    int xLeft_ = 0;
    int yTop_ = 0;
    int extent_ = 0;
    int right_ = 0;
    int bottom_ = 0;
};
