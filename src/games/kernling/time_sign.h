// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTimer>
#include <QWidget>

class Clock;

/// The sign of a running game: a clock face that empties with the time that is left. It only shows; the
/// game's end is the business of the game's timer.
class TimeSign : public QWidget
{
    Q_OBJECT

public:
    explicit TimeSign(QWidget *parent = nullptr);

    void start(const Clock &clock, int milliseconds);
    void stop();
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    double left() const;

    QTimer look_;
    const Clock *clock_ = nullptr;
    qint64 begun_ = 0;
    int length_ = 1; ///< milliseconds
};
