// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

/// The soft shadow that a box throws on the window behind it. It is painted by that window, as a
/// child over all others, because a translucent window of its own needs a compositor that not every desktop
/// has. Where painting is suspended there is no shadow, since it could not be painted away again.
class BoxShadow : public QWidget
{
    Q_OBJECT

public:
    /// Shadows `box` on the window of `ground` for as long as it is shown.
    BoxShadow(QWidget *box, QWidget *ground);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void follow();
    void vanish();
    /// The parts of the window behind that paint nothing at present.
    QWidgetList frozenParts() const;

    QWidget *box_;
};
