// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class Log;

/// Small helpers that ask or tell the operating system something.

/// The name that the log gives to a version of the platform the program was made for: `version` is platform
/// id, major and minor number joined with points.
QString osName(const QString &version, const QString &build);
/// The name of the system that the program runs on.
QString GetOSName();
/// The system's owner: the user's full name, or else the login name.
QString GetUserName();

/// Deletes a file (stored path). False if there is none, or if it could not be deleted, which is told to
/// `log`, if there is one.
bool KillFile(const QString &path, Log *log = nullptr);

/// Adds an existing file (stored path) to the desktop's recent documents, where the desktop keeps such a
/// list. Nothing happens where it does not, or where the list cannot be understood.
void AddToRecentDocs(const QString &path, const QString &mimeType);
