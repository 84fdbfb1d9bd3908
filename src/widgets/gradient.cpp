// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/gradient.h"

#include <QLinearGradient>
#include <QPainter>
#include <QtMath>

#include <cmath>

void gradient::paint(QPainter &painter, const QRect &rect, const QColor &first, const QColor &second,
                     double degrees)
{
    // The line of the gradient runs through the middle and is as long as the rectangle is in its direction,
    // so that both corners get pure colours.
    const double angleInRadians = qDegreesToRadians(degrees);
    const QPointF direction(std::cos(angleInRadians), -std::sin(angleInRadians));
    const double half =
        (std::abs(direction.x()) * rect.width() + std::abs(direction.y()) * rect.height()) / 2;
    const QPointF middle = QRectF(rect).center();
    QLinearGradient fill(middle - direction * half, middle + direction * half);
    fill.setColorAt(0, first);
    fill.setColorAt(1, second);
    painter.fillRect(rect, fill);
}

void GradientPanel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    gradient::paint(painter, rect());
}
