// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class Options;
class QWidget;
class Rnd;
struct MainControls;

/// Moves a child of the main window to where the options want the running strip; the word hint of the game
/// goes to the same place. A place by chance may be negative on a window smaller than the child; it is
/// deliberately not corrected.
void placeOverBoard(const MainControls &controls, const Options &options, Rnd &rnd, QWidget &child);
