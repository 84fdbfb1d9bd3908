// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QWidget>

class QPainter;

/// The window gradient of the program: from R 61, G 149, B 255 to white at an angle of -100 degrees (degrees,
/// counter-clockwise from the x axis).
namespace gradient {
inline constexpr QColor from{61, 149, 255};
inline constexpr QColor to{255, 255, 255};
inline constexpr double angle = -100.0;
void paint(QPainter &painter, const QRect &rect, const QColor &first = from, const QColor &second = to,
           double degrees = angle);
} // namespace gradient

/// A panel painted with the window gradient.
class GradientPanel : public QWidget
{
    Q_OBJECT

public:
    explicit GradientPanel(QWidget *parent = nullptr)
        : QWidget(parent)
    {}

protected:
    void paintEvent(QPaintEvent *event) override;
};
