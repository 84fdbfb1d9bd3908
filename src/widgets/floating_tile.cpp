// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/floating_tile.h"

#include <QPainter>

namespace {
constexpr QPoint textPlace{2, 5}; ///< from the corner of a tile to that of its text
}

FloatingTile::FloatingTile(QWidget *parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_OpaquePaintEvent);
    QFont bold = font();
    bold.setBold(true);
    setFont(bold);
    laid_.setTextFormat(Qt::PlainText);
}

void FloatingTile::setTile(const QString &caption, const QColor &back, const QColor &text)
{
    caption_ = caption;
    laid_.setText(caption);
    back_ = back;
    text_ = text;
    update();
}

void FloatingTile::setScale(double scale)
{
    scale_ = scale;
    update();
}

void FloatingTile::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    painter.fillRect(rect().adjusted(1, 1, -1, -1), back_);
    // Laid out and placed as on the board, so that the letters stand still when the tile is picked up.
    painter.setPen(text_);
    painter.scale(scale_, scale_);
    painter.drawStaticText(textPlace, laid_);
}
