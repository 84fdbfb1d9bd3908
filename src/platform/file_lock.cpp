// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/file_lock.h"

#include <QFileInfo>

namespace {

/// What lies there is read to find out whose it is: a pipe would let the reader wait.
bool isLockOrNothing(const QFileInfo &info)
{
    constexpr qint64 largestLock = 4096; // bytes; it holds three short lines
    return info.isFile() ? info.size() <= largestLock : !info.exists();
}

} // namespace

FileLock::FileLock(const QString &file, int staleAfter, int longestWait)
    : lock_(file + QStringLiteral(".lock"))
{
    lock_.setStaleLockTime(staleAfter);
    if (isLockOrNothing(QFileInfo(lock_.fileName())))
        lock_.tryLock(longestWait);
}
