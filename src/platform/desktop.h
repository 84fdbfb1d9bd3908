// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Hides or shows the desktop's task bar. Desktops other than the one the program was made for leave their
/// bars to the user, and there this does nothing.
void ShowTaskBar(bool shown);
