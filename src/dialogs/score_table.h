// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QGridLayout;
class QLabel;
class QString;
class QWidget;
struct HighScoreSheet;

/// What the windows with a list of the best have in common.
namespace score_table {

/// How a window calls the labels of a row; "%1" stands for the number of the row.
struct Names
{
    const char16_t *rank;
    const char16_t *name;
    const char16_t *score;
    int less; ///< the number in the names of name and score is the place less this; in the rank's, less one
    const char16_t *rankEnd; ///< what stands behind the number of the rank
};

/// A label in the ink of the blue gradient, plain text. `pixels` is the size of its letters.
QLabel *makeLabel(const QString &text, int pixels, bool bold, QWidget *parent);
/// One row a place: rank, name, score. The new entry stands out.
QGridLayout *make(const HighScoreSheet &sheet, const Names &names, int pixels, QWidget *parent);

} // namespace score_table
