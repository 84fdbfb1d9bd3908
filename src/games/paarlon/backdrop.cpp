// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/paarlon/backdrop.h"

#include "widgets/gradient.h"

#include <QPainter>

void Backdrop::setColour(const QColor &colour)
{
    colour_ = colour;
    update();
}

void Backdrop::setGradient() { setColour({}); }

void Backdrop::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (colour_.isValid())
        painter.fillRect(rect(), colour_);
    else
        gradient::paint(painter, rect());
}
