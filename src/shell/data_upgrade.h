// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Fills the user's folder from the installed data, and renews it when another version of them is installed.
///
/// A manifest in the user's folder keeps the checksum of every file that was laid down. With a new version
/// - a file that still is what was laid down, or what is installed now, gets the new content;
/// - a file that the user has edited, or that nothing is known of, stays;
/// - a file that is new comes, and a file that the user has taken away stays away, but for the few without
///   which no start is possible: those come back at the next start;
/// - a file that the new version has no more stays: a session or a setting may name it.
/// An older version leaves what a newer one has laid down.
namespace data_upgrade {

/// True if the folder has the lists and dictionaries without which there is no game.
bool holdsData(const QString &folder);

/// True if some version has filled the folder to the last file, and none is gone that a start needs.
bool isWhole(const QString &userFolder, const QString &installedData);

/// Native paths; `version` is the program's, "1.2.3". When nothing has changed since the last time it looks
/// at sizes and times only. It may be cut off at any moment and goes on at the next start: every file is the
/// old one or the new. A file that cannot be written stays as it is and is tried again then. Throws
/// RuntimeError if an installed file cannot be read or the manifest cannot be written.
void bringUpToDate(const QString &userFolder, const QString &installedData, const QString &version);

} // namespace data_upgrade
