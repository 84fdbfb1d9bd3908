// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>

/// The seam of time: fixed waits and the clock's reading. A test's clock returns from a wait at once.
class Clock
{
public:
    virtual ~Clock() = default;
    virtual QDateTime now() const = 0;
    /// Milliseconds of a clock that only runs: nobody sets it, and it stands while the computer sleeps.
    virtual qint64 elapsed() const = 0;
    /// Blocks the interface for `milliseconds`, painting what is due, taking no input.
    virtual void wait(int milliseconds) = 0;
};

/// The seam of the event loop for long work on the one interface thread.
class EventPump
{
public:
    virtual ~EventPump() = default;
    /// Lets the window appear as it is: paints, timers and messages run, a hand's input waits in its order.
    virtual void yield() = 0;
    /// Lets everything run, input too. Only a work calls it, for only a work has a way to be stopped.
    virtual void serve() = 0;
    /// True if a key, mouse button, paint or hot-key event waits; cheap enough to ask in every round of a
    /// search.
    virtual bool inputWaiting() = 0;
};
