// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/file_dialogs.h"

/// The real file dialogs: the toolkit's own on every desktop, so that they look and behave alike, with German
/// captions. A file can be chosen in them, but neither renamed, moved nor deleted. Filters are written
/// "Name (*.txt)|*.txt", several joined by "|", several patterns by ";".
class WindowFileDialogs : public FileDialogs
{
public:
    /// `programFolder` (stored form) is one of the places at the dialogs' side.
    explicit WindowFileDialogs(const QString &programFolder = {})
        : programFolder_(programFolder)
    {}

    QStringList openFiles(const QString &title, const QString &folder, const QString &filter,
                          bool multiple) override;
    QString saveFile(const QString &title, const QString &folder, const QString &filter,
                     const QString &suffix, const SaveHints &hints) override;
    std::optional<Colour> chooseColour(const QString &title, Colour present) override;

    /// `filter` in the toolkit's form, one entry for each name.
    static QStringList nameFilters(const QString &filter);

private:
    QString programFolder_;
};
