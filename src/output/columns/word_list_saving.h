// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

struct Ground;

/// What saving a list of words says; each list has its own words for it.
struct WordListSaving
{
    const char *form;      ///< of the log's lines
    const char16_t *title; ///< of the dialog
    const char16_t *nothingToSave;
    const char16_t *faultTitle;
    const char16_t *fault;
};

/// `Save_Result`: asks for a file, starting in the folder of the last export, and writes the words as the
/// options wish: one a line, in columns or in blocks. A failure is told in a box, and the folder is
/// remembered only after a success.
void saveWordList(Ground &ground, const QStringList &words, const WordListSaving &saving);
