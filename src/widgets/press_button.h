// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QToolButton>

/// A tool of the lower band: a push, check or option button with an icon or a short text that tells left from
/// right presses, because most tools do two things. It never takes the keyboard focus, so the keyboard stays
/// with the board.
class PressButton : public QToolButton
{
    Q_OBJECT

public:
    explicit PressButton(QWidget *parent = nullptr);

    /// The face in a colour of its own (a kind's colour, a running game's); invalid for the normal face.
    void setFace(const QColor &back, const QColor &text = {});
    QColor faceColour() const { return back_; }

    QSize sizeHint() const override;

signals:
    /// A press with the left or the right button, enabled buttons only. A left press arrives on release
    /// inside the button, behind `toggled` and `clicked`; a right press at once.
    void mouseDown(Qt::MouseButton button, Qt::KeyboardModifiers modifiers);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    struct Look;
    Look look() const;
    void paintFace(QPainter &painter, const Look &look) const;
    void paintContent(QPainter &painter, const Look &look) const;

    QColor back_;
    QColor text_;
};
