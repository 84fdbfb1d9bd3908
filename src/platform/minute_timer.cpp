// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/minute_timer.h"

#include "platform/clock.h"

#include <algorithm>
#include <limits>

namespace {
constexpr int lookEvery = 250; ///< milliseconds
}

MinuteTimer::MinuteTimer(const Clock &clock, QObject *parent)
    : QObject(parent)
    , clock_(clock)
    , look_(this)
{
    look_.setInterval(lookEvery);
    connect(&look_, &QTimer::timeout, this, &MinuteTimer::look);
}

qint64 MinuteTimer::period() const
{
    constexpr qint64 minute = 60'000; // milliseconds
    if (TimerMode_ == TimerMode::Plain)
        return Interval_;
    return (qint64(HourInterval_) * 60 + MinuteInterval_) * minute;
}

void MinuteTimer::setEnabled(bool on)
{
    due_ = clock_.elapsed() + period();
    on && period() > 0 ? look_.start() : look_.stop();
}

void MinuteTimer::look()
{
    while (Enabled() && clock_.elapsed() >= due_) {
        due_ += std::max<qint64>(1, period());
        emit Timer();
    }
}

void startForSeconds(QTimer &timer, double seconds)
{
    const double milliseconds = std::min(seconds * 1000, double(std::numeric_limits<int>::max()));
    if (milliseconds >= 1)
        timer.start(static_cast<int>(milliseconds));
}
