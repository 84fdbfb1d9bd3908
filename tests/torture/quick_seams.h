// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/clock.h"
#include "platform/sound.h"

#include <QDateTime>

/// A clock that never waits, and that a test may move on.
class QuickClock : public Clock
{
public:
    qint64 ahead = 0; ///< milliseconds

    QDateTime now() const override { return QDateTime::currentDateTime().addMSecs(ahead); }
    qint64 elapsed() const override { return now().toMSecsSinceEpoch(); }
    void wait(int) override {}
};

class NoSound : public Sound
{
public:
    void PlayResourceSound(int) override {}
    bool playFile(const QString &) override { return true; }
};
