// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QApplication;

/// The entry procedure: from the first instruction to the last. Returns the process's exit code.
int startWortel(int argc, char *argv[]);

/// Gives the application its name, look, font, icon and German words. Whoever shows the program's windows
/// calls it first.
void dressApplication(QApplication &application);

/// The command line as one text, the way the program reads it: the arguments joined by blanks. An argument
/// that names an existing file becomes a full stored path (with backslashes, so that it is not taken for a
/// switch).
QString commandLineText(const QStringList &arguments);
