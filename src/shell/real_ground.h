// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "dialogs/real_boxes.h"
#include "platform/gate.h"
#include "platform/gated_boxes.h"
#include "platform/ground.h"
#include "platform/log.h"
#include "platform/notes.h"
#include "platform/options.h"
#include "platform/rnd.h"
#include "platform/settings_file.h"
#include "platform/sound_player.h"
#include "platform/system_clock.h"
#include "platform/system_printer.h"
#include "platform/window_file_dialogs.h"

/// The ground of the real program: every seam with what it stands for.
class RealGround
{
public:
    /// `appFolder` in the stored form, with its trailing backslash.
    explicit RealGround(const QString &appFolder);

    Ground &ground() { return ground_; }
    RealBoxes &boxes() { return boxes_; }

private:
    Log log_;
    Gate gate_;
    RealBoxes boxes_;
    GatedBoxes gatedBoxes_{boxes_, gate_};
    WindowFileDialogs fileDialogs_;
    GatedFileDialogs gatedDialogs_{fileDialogs_, gate_};
    SystemPrinter printer_;
    Rnd rnd_;
    SoundPlayer sound_;
    SystemClock clock_{gate_};
    LoopPump pump_{gate_};
    SettingsFile store_;
    Options options_;
    Notes notes_;
    Ground ground_;
};
