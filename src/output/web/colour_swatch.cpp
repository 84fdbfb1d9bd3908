// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/web/colour_swatch.h"

#include "widgets/colour.h"

#include <QPainter>

ColourSwatch::ColourSwatch(QWidget *parent)
    : QAbstractButton(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
}

void ColourSwatch::setColour(Colour colour)
{
    colour_ = colour;
    setAccessibleDescription(toQColor(colour).name());
    update();
}

void ColourSwatch::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(QPen(hasFocus() || underMouse() ? paint::activeFrame : paint::frame, hasFocus() ? 2 : 1));
    painter.setBrush(toQColor(colour_));
    painter.drawRect(rect().adjusted(1, 1, -2, -2));
}
