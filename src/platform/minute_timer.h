// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QTimer>

class Clock;

/// Starts a timer that fires after that many seconds, as far as an int of milliseconds holds them; 0 and less
/// leave it as it is: an interval of nothing would be no timer.
void startForSeconds(QTimer &timer, double seconds);

/// The timer `utimerCTL`, which counts minutes. It looks at the ground's running clock, which neither a sleeping
/// computer nor a clock that is set moves, so a late look loses no minute: each one that has passed is told.
class MinuteTimer : public QObject
{
    Q_OBJECT

public:
    enum class TimerMode {
        Minutes = 0, ///< an event each `MinuteInterval` minutes and `HourInterval` hours
        Plain = 1,   ///< an event each `Interval` milliseconds
    };

    explicit MinuteTimer(const Clock &clock, QObject *parent = nullptr);

    // A change takes effect with the next event. Intervals that are 0 together give no event at all.
    void setTimerMode(TimerMode mode) { TimerMode_ = mode; }
    void setInterval(int milliseconds) { Interval_ = milliseconds; }
    void setMinuteInterval(int minutes) { MinuteInterval_ = minutes; }
    void setHourInterval(int hours) { HourInterval_ = hours; }
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
    TimerMode TimerMode_ = TimerMode::Minutes;
    int Interval_ = 0;
    int MinuteInterval_ = 1;
    int HourInterval_ = 0;
    qint64 due_ = 0; ///< milliseconds of the running clock
};
