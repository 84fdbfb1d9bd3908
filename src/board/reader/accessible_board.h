// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAccessibleWidget>

class BoardReader;

/// The board as a screen reader meets it: a list of its tiles, and what else lies on it behind them.
class AccessibleBoard : public QAccessibleWidget
{
public:
    explicit AccessibleBoard(BoardReader &reader);

    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    QAccessibleInterface *focusChild() const override;
    QString text(QAccessible::Text kind) const override;

private:
    BoardReader &reader_;
};
