// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system_clock.h"

#include "platform/gate.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

QDateTime SystemClock::now() const { return QDateTime::currentDateTime(); }

void SystemClock::wait(int milliseconds)
{
    const Gate::Passage passage = gate_.stay();
    QEventLoop loop;
    QTimer::singleShot(qMax(0, milliseconds), Qt::PreciseTimer, &loop, &QEventLoop::quit);
    // Sockets are left out too: what a second start hands over may open a session.
    loop.exec(QEventLoop::ExcludeUserInputEvents | QEventLoop::ExcludeSocketNotifiers);
}

void LoopPump::yield()
{
    const Gate::Passage passage = gate_.stay();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void LoopPump::serve()
{
    const Gate::Passage passage = gate_.stay();
    QCoreApplication::processEvents();
    sinceServed_.restart();
}
