// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/clock.h"

#include <QElapsedTimer>

/// The real clock.
class SystemClock : public Clock
{
public:
    QDateTime now() const override;
    void wait(int milliseconds) override;
};

/// The real event loop. No window system says cheaply and for all of its kinds whether an event waits, so
/// this pump counts input as waiting whenever the last yield lies a short slice of time back: a key or a
/// paint is then served within that slice. A question costs one reading of the clock (some 25 ns); an empty
/// yield some 20 µs, which is about 0.2 % of a slice.
class LoopPump : public EventPump
{
public:
    LoopPump() { sinceYield_.start(); }
    void yield() override;
    bool inputWaiting() override { return sinceYield_.hasExpired(sliceMs); }

    static constexpr int sliceMs = 10;

private:
    QElapsedTimer sinceYield_;
};
