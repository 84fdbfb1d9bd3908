// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLockFile>

/// Keeps other programs and computers from writing a file meanwhile. In a folder where no lock can be laid,
/// behind one that hangs, and where something else lies in its place, it goes on without: then no write
/// succeeds, or nobody else is writing.
class FileLock
{
public:
    /// Locks `file` (native) by a file ".lock" beside it. Both times are milliseconds: after how many a lock
    /// counts as left over, and how many to wait for one.
    FileLock(const QString &file, int staleAfter, int longestWait);

private:
    QLockFile lock_;
};
