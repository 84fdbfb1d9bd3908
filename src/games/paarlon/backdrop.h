// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QWidget>

/// A piece of window that is painted in one colour, or with the window gradient.
class Backdrop : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    void setColour(const QColor &colour);
    void setGradient();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QColor colour_; ///< invalid: the gradient
};
