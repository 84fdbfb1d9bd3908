// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

class GradientPanel;
class QVBoxLayout;
struct HighScoreSheet;

/// A window with a list of the best, on the blue gradient: what it shows stands over its button "OK".
class ScoreWindow : public QDialog
{
    Q_OBJECT

protected:
    ScoreWindow(const HighScoreSheet &sheet, QWidget *owner);

    /// Where the derived window puts what it shows.
    GradientPanel *panel() const { return panel_; }
    QVBoxLayout *column() const { return column_; }
    /// Adds the button under everything, and gives the window the size of it all.
    void finish();

    void showEvent(QShowEvent *event) override;

private:
    GradientPanel *panel_;
    QVBoxLayout *column_;
};
