// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// What the program calls itself, its version and its own files, each said once.
namespace product {

inline const QString name = QStringLiteral("Wortel-Meister");
/// The title of a box that tells a fault.
inline const QString faultTitle = QStringLiteral("Wortel-Meister - Fehler");
/// The backup of the board.
inline const QString backupName = QStringLiteral("WLXAutoSave.bak");
/// Its path (stored form) in the program's folder `appFolder`.
QString backupFile(const QString &appFolder);

/// The main window's caption: name, major and minor version.
QString caption();
/// "1.0.0", as the log and the desktop show it.
QString version();
/// "1.00.00", as the splash shows it: minor version and revision with two digits.
QString paddedVersion();

} // namespace product
