// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The help file "wortel.chm", which a school may lay beside the program.
namespace compiled_help {

/// The path of the help file in `appFolder` (stored form) as the file system takes it, or an empty text if
/// there is none.
QString file(const QString &appFolder);

/// True if the system has a program for such files: one of the type caches that the desktop keeps below
/// `dataFolders` (native paths) names one. Reads a few small files and starts nothing. On the platform that
/// brings a viewer along it is always true.
bool canBeShown(const QStringList &dataFolders);

} // namespace compiled_help
