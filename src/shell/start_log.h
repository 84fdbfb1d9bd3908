// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

struct Ground;

/// Switches the log on, asks if the old one is to be emptied first, and writes the header. `useBackup`: the
/// setting, for the header's last line.
void startLog(Ground &ground, bool useBackup);
