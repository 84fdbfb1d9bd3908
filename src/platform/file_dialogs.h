// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/colours.h"

#include <QString>
#include <QStringList>

#include <optional>

/// The seam of the file, colour, font and printer dialogs. Folders and paths are in the stored form
/// (backslashes).
class FileDialogs
{
public:
    virtual ~FileDialogs() = default;

    /// What was chosen: full paths, in the dialog's order. Empty if it was cancelled.
    virtual QStringList openFiles(const QString &title, const QString &folder, const QString &filter,
                                  bool multiple) = 0;
    /// What a dialog for saving begins with, if anything.
    struct SaveHints
    {
        QString name; ///< that is suggested
        QString open; ///< the file that is being worked on; it is replaced without a question
    };
    /// The full path, with `suffix` (".wlx") added if the name has none, or empty. Asks before another file
    /// is replaced.
    virtual QString saveFile(const QString &title, const QString &folder, const QString &filter,
                             const QString &suffix, const SaveHints &hints = {}) = 0;
    /// The chosen colour, or nothing.
    virtual std::optional<Colour> chooseColour(const QString &title, Colour present) = 0;
};
