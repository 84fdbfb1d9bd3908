// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QTimer>

class Clock;

/// A timer that counts minutes or hours. It looks at the ground's running clock, which neither a sleeping
/// computer nor a clock that is set moves, so a late look loses no minute: each one that has passed is told.
class MinuteTimer : public QObject
{
    Q_OBJECT

public:
    enum class TimerMode { Milliseconds, Minutes, Hours };

    explicit MinuteTimer(const Clock &clock, QObject *parent = nullptr);

    TimerMode mode() const { return mode_; }
    void setTimerMode(TimerMode mode);
    /// How many of the mode's units lie between two events, at least 1. Takes effect with the next event.
    void setInterval(int units);
    int interval() const { return interval_; }
    bool Enabled() const { return look_.isActive(); }
    /// Counts from this moment on, or stops.
    void setEnabled(bool on);

    /// Tells every event that is due. The timer calls it several times a second; a test calls it itself.
    void look();

signals:
    void Timer();

private:
    qint64 period() const;

    const Clock &clock_;
    QTimer look_;
    TimerMode mode_ = TimerMode::Minutes;
    int interval_ = 1;
    qint64 due_ = 0; ///< milliseconds of the running clock
};
