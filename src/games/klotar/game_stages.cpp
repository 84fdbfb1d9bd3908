// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/klotar/game_stages.h"

namespace game_stages {

QString startCaption(const GameStage &stage, int minutes)
{
    return QString::number(minutes) + QString::fromUtf16(minutes == 1 ? stage.minuteTo : stage.minutesTo);
}

QString buildingCaption(int left) { return QString::number(left) + QString::fromUtf16(building.minutesTo); }

QString valueCaption(int maximum, int value)
{
    return QString::number(maximum - value) +
           (value == 1 ? QStringLiteral(" Minute übrig") : QStringLiteral(" Minuten übrig"));
}

} // namespace game_stages
