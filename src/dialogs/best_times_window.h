// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

struct HighScoreSheet;

/// The ten best of one kind of the card game, with what is said to the winner beside them.
class frmBestTimes : public QDialog
{
    Q_OBJECT

public:
    frmBestTimes(const HighScoreSheet &sheet, QWidget *owner);

protected:
    void showEvent(QShowEvent *event) override;
};
