// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Makes the compiled-in icons, sounds and pictures known. Call it once, at the start of a program: the
/// linker leaves the resources of a static library out otherwise.
void initResources();
