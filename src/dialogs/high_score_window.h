// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "dialogs/score_window.h"

/// The list of the best of one game, with the result of the game that is just over. Only its button (and Esc)
/// closes it.
class frmHighScore : public ScoreWindow
{
    Q_OBJECT

public:
    frmHighScore(const HighScoreSheet &sheet, QWidget *owner);
};
