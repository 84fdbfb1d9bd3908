// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class Options;
class QApplication;
class QWidget;

/// The entry procedure: from the first instruction to the last. Returns the process's exit code.
int startWortel(int argc, char *argv[]);

/// Gives the application its name, look, font, icon and German words. Whoever shows the program's windows
/// calls it first.
void dressApplication(QApplication &application);

/// Shows the window as large as the screen allows: with the task bar hidden, on all of it.
void showMainWindow(QWidget &form, const Options &options);
