// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

class Procedure;
struct Ground;

/// What is said where a list of words is saved.
struct WordFileTexts
{
    QString title; ///< of the file dialog
    QString faultTitle;
    QString fault;
};

/// Asks for a file and writes the words into it as the options wish: one a line, in columns or in blocks. A
/// failure is told in a box. The folder is remembered after a success.
void saveWords(Ground &ground, Procedure &step, const QStringList &words, const WordFileTexts &texts);
