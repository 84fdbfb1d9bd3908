// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QWidget>

/// The translucent panel that lies over the board and shows a tip: its own white face mixed with a faint copy
/// of the board beneath. It has a thin border.
class AlphaPanel : public QWidget
{
    Q_OBJECT

public:
    static constexpr int opacity = 32; ///< of 255: the share of the board in the mixture
    static constexpr QRgb keyColour = 0xFFFF00FF;

    explicit AlphaPanel(QWidget *parent = nullptr);

    /// Mixes the part of `board` that lies at this panel's place in its parent (logical pixels) into the
    /// panel's face. Pixels of the key colour, and all beyond the board's edge, are left out.
    void blend(const QImage &board);
    const QImage &face() const { return face_; }

signals:
    void clicked();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    QImage face_;
};
