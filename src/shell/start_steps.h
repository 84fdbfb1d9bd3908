// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include <functional>

class ArgumentHandler;
struct Ground;

/// What happens between the entry and the first window. Each step tells if the start goes on.
namespace start_steps {

enum class Next { GoOn, End };

/// Walks the parsed arguments in order: "L" opens the log (in the first instance only: a second one just
/// passes its text along), "I" shows the about window, "?" the parameters; any other name is told as an
/// error.
Next ApplyArguments(Ground &ground, const ArgumentHandler &arguments, bool isFirstInstance,
                    const std::function<void()> &showAbout);

/// If the previous run left its backup file and `UseBackup` is on: asks if it is to be opened. Yes sets
/// `RecoverOnStart`; Cancel ends the program.
Next askForRecovery(Ground &ground, bool &RecoverOnStart);

/// Removes what a run that was killed while it wrote has left: in the program's folder, where a session and
/// the word list were saved last, and in `ownFolders` (native paths).
void removeLeftOvers(const Ground &ground, const QStringList &ownFolders);

} // namespace start_steps
