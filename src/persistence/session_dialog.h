// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

struct Ground;

/// What opening and saving a session ask for in common: a path that was given, or one that the user chooses
/// in a dialog, which opens in the folder of the last choice.
struct SessionDialog
{
    QString title;
    QString filter;
    QString folderKey; ///< of the section "Path"
};

/// The chosen path in stored form, or the empty string. The folder is *not* remembered yet. Saving over the
/// session `open` needs no question.
QString chooseToOpen(Ground &ground, const SessionDialog &dialog);
QString chooseToSave(Ground &ground, const SessionDialog &dialog, const QString &open = {});
/// Keeps the folder of `path`, without its trailing backslash, for the next time.
void rememberFolder(Ground &ground, const SessionDialog &dialog, const QString &path);
