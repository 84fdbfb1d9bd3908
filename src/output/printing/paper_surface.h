// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "board/tiles/tile.h"

#include <QFont>
#include <QImage>

class QPainter;

/// Paper on which tiles draw themselves: boxes and letters at the resolution of the painter's device, however
/// large the board comes out.
class PaperSurface : public TileSurface
{
public:
    /// What lies under the tiles.
    struct Underlay
    {
        QColor colour;
        QImage picture; ///< at the top left corner, one picture point a pixel of the board; may be null
    };

    /// `board` in pixels of the board, `scale` in dots of the device a pixel, `letters` as on the board.
    PaperSurface(QPainter &painter, const QSize &board, double scale, const QFont &letters,
                 Underlay underlay);

    void fillBox(int left, int top, int right, int bottom, Colour colour) override;
    void outlineBox(int left, int top, int right, int bottom, Colour colour) override;
    void printText(int x, int y, const QString &text, Colour colour) override;
    void clear() override;

private:
    QRectF onPaper(double left, double top, double right, double bottom) const;

    QPainter &painter_;
    QSize board_;
    double scale_;
    double ascent_;
    Underlay underlay_;
};
