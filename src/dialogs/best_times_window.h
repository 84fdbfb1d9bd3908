// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "dialogs/score_window.h"

/// The ten best of one kind of the card game, with what is said to the winner beside them.
class frmBestTimes : public ScoreWindow
{
    Q_OBJECT

public:
    frmBestTimes(const HighScoreSheet &sheet, QWidget *owner);
};
