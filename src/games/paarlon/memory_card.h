// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "games/paarlon/morpheme_pick.h"

#include <QAbstractButton>

/// One card, `picMorphemeCard`: what is printed on it, and the hand and the keys that turn it. It knows its
/// place and its size in twips as designed, so that it looks alike at every scale of the window.
class MemoryCard : public QAbstractButton
{
    Q_OBJECT

public:
    static constexpr int perRow = 6;
    static constexpr int side = 990; ///< twips

    enum class Side { Down, Up, Solved };
    struct Look
    {
        Side side = Side::Down;
        QColor back;
        QColor text;
        morphemes::Print print;
        bool operator==(const Look &) const = default;
    };

    /// `index` 0 to 35, row by row.
    MemoryCard(int index, QWidget *parent);

    void setLook(const Look &look);
    const Look &look() const { return look_; }

signals:
    /// An arrow key: so many rows down, so many columns to the right.
    void arrowPressed(int rows, int columns);

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;

private:
    void tellReaders();
    void paintText(QPainter &painter) const;
    void paintFocus(QPainter &painter) const;
    double pixels(int twips) const { return width() * static_cast<double>(twips) / side; }

    int index_;
    Look look_;
};
