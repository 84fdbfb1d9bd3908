// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStaticText>
#include <QWidget>

/// The floating copy of a held tile, `BtnMove1`: it stands over the board and lets pointer events through.
class FloatingTile : public QWidget
{
    Q_OBJECT

public:
    explicit FloatingTile(QWidget *parent = nullptr);
    void setTile(const QString &caption, const QColor &back, const QColor &text);
    /// How large the letters are, 1 as on the plain board.
    void setScale(double scale);
    double scale() const { return scale_; }
    QString Caption() const { return caption_; }
    QColor backColour() const { return back_; }
    QColor textColour() const { return text_; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString caption_;
    QStaticText laid_;
    QColor back_;
    QColor text_;
    double scale_ = 1;
};
