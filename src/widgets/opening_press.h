// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPoint>

class QMenu;
class QRect;

/// Keeps from a menu the moves and the release of the press that opened it. A menu that has no room beside
/// the pointer lies under it, and a hand that trembles before it lets go would choose what happens to lie
/// there. A press that the menu has seen does as always.
class OpeningPress : public QObject
{
    Q_OBJECT

public:
    /// Where a menu has to open that is wanted with its corner at `wanted` (pixels of the screen): there, or
    /// shifted just so far that it is whole on the screen. From now on, and until it closes, the press that
    /// opens the menu chooses nothing.
    static QPoint placeFor(QMenu &menu, const QPoint &wanted);
    /// What windows may cover of the screen that `position` is on.
    static QRect screenOf(const QPoint &position);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    explicit OpeningPress(QMenu &menu);

    Qt::MouseButtons seenDown_; ///< since the menu opened
};
