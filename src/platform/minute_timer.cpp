// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/minute_timer.h"

#include "platform/clock.h"

#include <algorithm>

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

void MinuteTimer::setTimerMode(TimerMode mode) { mode_ = mode; }

void MinuteTimer::setInterval(int units) { interval_ = std::max(1, units); }

qint64 MinuteTimer::period() const
{
    constexpr qint64 minute = 60'000;
    const qint64 unit = mode_ == TimerMode::Hours ? 60 * minute : mode_ == TimerMode::Minutes ? minute : 1;
    return unit * interval_;
}

void MinuteTimer::setEnabled(bool on)
{
    due_ = clock_.elapsed() + period();
    on ? look_.start() : look_.stop();
}

void MinuteTimer::look()
{
    while (Enabled() && clock_.elapsed() >= due_) {
        due_ += period();
        emit Timer();
    }
}
