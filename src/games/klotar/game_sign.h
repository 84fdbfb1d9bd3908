// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

/// What a class reads from the back row while a game runs: what is to be done, and how many minutes are left.
/// It lies translucent under the prefixes at the board's right, in letters that grow with the board, lets
/// every press through, and moves over to the left when the pointer comes to what lies under it.
class GameSign : public QWidget
{
    Q_OBJECT

public:
    /// Over `board`, in the same window.
    explicit GameSign(QWidget *board);

    void tell(const QString &task, int minutesLeft);

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void place();

    QWidget *board_;
    QString text_;
    bool lastMinute_ = false;
    bool atLeft_ = false;
};
