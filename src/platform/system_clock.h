// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/clock.h"

#include <QElapsedTimer>

class Gate;

/// The real clock. A wait stands on the gate's stack.
class SystemClock : public Clock
{
public:
    explicit SystemClock(Gate &gate)
        : gate_(gate)
    {
        running_.start();
    }
    QDateTime now() const override;
    qint64 elapsed() const override { return running_.elapsed(); }
    void wait(int milliseconds) override;

private:
    Gate &gate_;
    QElapsedTimer running_;
};

/// The real event loop. No window system says cheaply and for all of its kinds whether an event waits, so
/// this pump counts input as waiting whenever it was last served longer ago than a short slice of time: a key
/// or a paint is then served within that slice. A question costs one reading of the clock (some 25 ns), an
/// empty serving some 20 µs, which is about 0.2 % of a slice. Whoever lets events run stands on the gate's
/// stack meanwhile, so that what they bring finds the gate shut.
class LoopPump : public EventPump
{
public:
    explicit LoopPump(Gate &gate)
        : gate_(gate)
    {
        sinceServed_.start();
    }
    void yield() override;
    void serve() override;
    bool inputWaiting() override { return sinceServed_.hasExpired(sliceMs); }

    static constexpr int sliceMs = 10;

private:
    Gate &gate_;
    QElapsedTimer sinceServed_;
};
