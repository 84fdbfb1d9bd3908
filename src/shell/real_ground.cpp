// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/real_ground.h"

#include <QRandomGenerator>

RealGround::RealGround(const QString &appFolder)
    : fileDialogs_(appFolder)
    , rnd_(QRandomGenerator::system()->generate64())
    , options_(store_, appFolder, log_)
    , ground_{appFolder, log_,  gatedBoxes_, gatedDialogs_, printer_, rnd_,  sound_,
              clock_,    pump_, store_,      options_,      gate_,    notes_}
{}
