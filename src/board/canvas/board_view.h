// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPoint>
#include <QRect>
#include <QTransform>

#include <algorithm>
#include <cmath>

/// How the board is seen: tiles keep their coordinates, and this says where on the canvas they are drawn and
/// pressed. Plain, both are the same; made smaller, more of the board is seen than the window has room for.
struct BoardView
{
    /// Smaller no letter could be read: what lies farther off stays out of sight.
    static constexpr double smallest = 0.2;

    double scale = 1;
    QPoint origin; ///< what of the board is seen in the left upper corner

    /// The view of a canvas of size `room` in which `all` is seen, and at least the plain board.
    static BoardView of(const QRect &all, QSize room)
    {
        const QRect plain(QPoint(0, 0), room);
        const QSize most = room / smallest;
        QRect seen = plain.united(all).intersected(
            QRect(QPoint(room.width() - most.width(), room.height() - most.height()),
                  QPoint(most.width(), most.height())));
        seen.setSize(seen.size().boundedTo(most));
        if (seen == plain || room.isEmpty())
            return {};
        return {std::min(static_cast<double>(room.width()) / seen.width(),
                         static_cast<double>(room.height()) / seen.height()),
                seen.topLeft()};
    }

    bool isPlain() const { return scale == 1 && origin.isNull(); }
    int length(int onBoard) const { return static_cast<int>(std::lround(onBoard * scale)); }
    QPoint toCanvas(QPoint onBoard) const { return (QPointF(onBoard - origin) * scale).toPoint(); }
    QRect toCanvas(const QRect &onBoard) const
    {
        return {toCanvas(onBoard.topLeft()), QSize(length(onBoard.width()), length(onBoard.height()))};
    }
    QPoint toBoard(QPoint onCanvas) const { return origin + (QPointF(onCanvas) / scale).toPoint(); }
    QTransform transform() const
    {
        return QTransform::fromTranslate(-origin.x(), -origin.y()) * QTransform::fromScale(scale, scale);
    }
};
