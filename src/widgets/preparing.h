// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

struct MainControls;

/// Enables or disables together the tools that must rest while something is prepared in steps: placement,
/// word generators, retyping.
void ToggleButtonsOnPreparing(const MainControls &controls, bool enable);
