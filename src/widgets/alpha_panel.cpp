// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/alpha_panel.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace {

constexpr QColor border{0x7A, 0x8C, 0xA8};

constexpr int mixed(int face, int copy)
{
    return (face * (255 - AlphaPanel::opacity) + copy * AlphaPanel::opacity + 127) / 255;
}

} // namespace

AlphaPanel::AlphaPanel(QWidget *parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setCursor(Qt::PointingHandCursor);
}

void AlphaPanel::blend(const QImage &board)
{
    const double ratio = board.isNull() ? devicePixelRatioF() : board.devicePixelRatio();
    QImage face((QSizeF(size()) * ratio).toSize().expandedTo(QSize(1, 1)), QImage::Format_RGB32);
    face.setDevicePixelRatio(ratio);
    face.fill(Qt::white);

    const QImage source =
        board.format() == QImage::Format_RGB32 ? board : board.convertToFormat(QImage::Format_RGB32);
    const QPoint from = (QPointF(pos()) * ratio).toPoint();
    const int firstX = std::max(0, -from.x());
    const int endX = std::min(face.width(), source.width() - from.x());
    const int endY = std::min(face.height(), source.height() - from.y());
    for (int y = std::max(0, -from.y()); y < endY; ++y) {
        const auto *in = reinterpret_cast<const QRgb *>(source.constScanLine(y + from.y())) + from.x();
        auto *out = reinterpret_cast<QRgb *>(face.scanLine(y));
        for (int x = firstX; x < endX; ++x) {
            if ((in[x] | 0xFF000000) != keyColour)
                out[x] = qRgb(mixed(255, qRed(in[x])), mixed(255, qGreen(in[x])), mixed(255, qBlue(in[x])));
        }
    }
    face_ = face;
    update();
}

void AlphaPanel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), border);
    const QRect inside = rect().adjusted(1, 1, -1, -1);
    painter.fillRect(inside, Qt::white);
    painter.setClipRect(inside);
    if (!face_.isNull())
        painter.drawImage(QPoint(0, 0), face_);
}

void AlphaPanel::mousePressEvent(QMouseEvent *event)
{
    event->accept();
    emit clicked();
}
