// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPoint>
#include <QSize>

class Options;
class Rnd;

/// What of the main window counts when something is put over the board, in its pixels.
struct BoardRoom
{
    QSize window;
    int bandTop = 0;  ///< `Picture1`
    int listLeft = 0; ///< `CorrectWordList`
};

/// Where the options want the running strip (and the word hint of the game, which goes to the same place) of
/// that size. A place by chance may be negative near the window's edges on a small window; it is deliberately
/// not corrected.
QPoint scrollerPlace(const Options &options, Rnd &rnd, const BoardRoom &room, QSize size);
