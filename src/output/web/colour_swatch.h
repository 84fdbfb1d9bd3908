// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/colours.h"

#include <QAbstractButton>

/// A field that shows a colour; a click asks its owner for another one.
class ColourSwatch : public QAbstractButton
{
    Q_OBJECT

public:
    explicit ColourSwatch(QWidget *parent = nullptr);

    Colour colour() const { return colour_; }
    void setColour(Colour colour);
    QSize sizeHint() const override { return {64, 24}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Colour colour_ = colours::white;
};
