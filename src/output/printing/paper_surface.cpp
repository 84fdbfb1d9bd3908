// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/printing/paper_surface.h"

#include "board/tiles/tile_store.h"
#include "widgets/colour.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <utility>

PaperSurface::PaperSurface(QPainter &painter, const QSize &board, double scale, const QFont &letters,
                           Underlay underlay)
    : painter_(painter)
    , board_(board)
    , scale_(scale)
    , underlay_(std::move(underlay))
{
    QFont font = letters;
    font.setBold(true);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setPixelSize(std::max(1, qRound(QFontInfo(letters).pixelSize() * scale)));
    painter_.setFont(font);
    ascent_ = QFontMetricsF(font, painter_.device()).ascent();
    painter_.setClipRect(onPaper(0, 0, board_.width(), board_.height()));
}

QRectF PaperSurface::onPaper(double left, double top, double right, double bottom) const
{
    return {left * scale_, top * scale_, (right - left) * scale_, (bottom - top) * scale_};
}

void PaperSurface::fillBox(int left, int top, int right, int bottom, Colour colour)
{
    painter_.fillRect(onPaper(left, top, right + 1, bottom + 1), toQColor(colour));
}

void PaperSurface::outlineBox(int left, int top, int right, int bottom, Colour colour)
{
    const QColor line = toQColor(colour);
    painter_.fillRect(onPaper(left, top, right + 1, top + 1), line);
    painter_.fillRect(onPaper(left, bottom, right + 1, bottom + 1), line);
    painter_.fillRect(onPaper(left, top + 1, left + 1, bottom), line);
    painter_.fillRect(onPaper(right, top + 1, right + 1, bottom), line);
}

void PaperSurface::printText(int x, int y, const QString &text, Colour colour)
{
    painter_.setPen(toQColor(colour));
    painter_.drawText(QPointF(x * scale_, y * scale_ + ascent_), tileText(text));
}

void PaperSurface::clear()
{
    painter_.fillRect(onPaper(0, 0, board_.width(), board_.height()), underlay_.colour);
    if (!underlay_.picture.isNull())
        painter_.drawImage(onPaper(0, 0, underlay_.picture.width(), underlay_.picture.height()),
                           underlay_.picture);
}
