// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// The one place where the program's stored paths (backslashes, any case) meet the file system, and the one
/// helper by which files are written. Reading maps "\" to "/" and finds a file whatever the case of its name
/// or its folders' names below an existing folder.

/// The path as the file system takes it: separators mapped, the true case of existing parts found. A path
/// that does not exist is returned mapped, with the case of its longest existing part corrected.
QString nativePath(const QString &stored);
/// A native path in the stored form, with backslashes.
QString storedPath(const QString &native);

/// True if the trimmed path is not empty and the file exists.
bool IsTextFile(const QString &path);
/// The text behind the last backslash (or slash), or the empty string if the path has none.
QString GetOnlyFileName(const QString &path);
/// `GetOnlyFileName` without its last ending: what a note calls a file.
QString nameWithoutEnding(const QString &path);
/// `GetOnlyFileName` without a trailing ".txt" (any case): the name a list goes by.
QString listBaseName(const QString &path);

/// Bytes of the largest file that is read. What is longer is no list and no text for a class, and would fill
/// the memory of its laptops.
inline constexpr qint64 largestFile = 64LL << 20;
/// The same for what is kept line by line (sessions, settings, lists), which takes many times the memory of
/// its bytes. The largest session that a board can make has half of it.
inline constexpr qint64 largestLineFile = 8LL << 20;

/// The whole file, without ever waiting for a pipe or a device. Throws RuntimeError 53 if it is missing, 70
/// if it may not be read, 7 if it is longer than `limit` bytes, 75 for other faults.
QByteArray ReadWholeFile(const QString &path, qint64 limit = largestFile);
/// The trimmed, non-empty entries of a list file, in whatever encoding (CR LF, CR or LF; a NUL ends nothing
/// and is dropped). With `keepBlank` blank lines stay as empty entries. Throws as ReadWholeFile.
QStringList readListFile(const QString &path, bool keepBlank = false);

/// True for a link that somebody else than this user or the system's owner has laid. It may lead anywhere, so
/// nothing is written through it.
bool isForeignLink(const QString &path);
/// Replaces `path` by `bytes`: written beside, flushed, renamed, so that a reader finds the old bytes or the
/// new, never a mix. The user's own link stays one, a foreign one is replaced itself; the mode stays what it
/// was. Falls back to writing in place only if the file beside could not be opened or must not take the old
/// one's place. Throws RuntimeError 61, 70, 75 or 76; the old file then stays.
void writeFileAtomically(const QString &path, const QByteArray &bytes);
/// Removes what a writer that was killed has left in `folder` (stored form), and not in the folders below it.
/// Files of other names stay, and so do those that a running program still writes.
void removeLeftOvers(const QString &folder);
