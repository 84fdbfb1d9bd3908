// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/log.h"

#include "platform/files.h"
#include "platform/text.h"
#include "platform/windows1252.h"

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

int Log::openForAppending(const char *path)
{
    const int handle =
        open(path, O_WRONLY | O_CREAT | O_APPEND | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC, 0644);
    struct stat facts
    {};
    if (handle < 0 || (fstat(handle, &facts) == 0 && S_ISREG(facts.st_mode) && facts.st_nlink <= 1))
        return handle;
    close(handle);
    return -1;
}

void Log::enable(const QString &file)
{
    file_ = file;
    enabled_ = true;
}

void Log::WriteLog(const QString &text)
{
    if (!enabled_)
        return;
    const int handle = openForAppending(QFile::encodeName(nativePath(file_)).constData());
    if (handle < 0)
        return;
    const QString line = Trim(text) + QStringLiteral(" - ") + FormatTime(QTime::currentTime());
    const QByteArray bytes = windows1252::encodeLossy(line) + "\r\n";
    [[maybe_unused]] const ssize_t written =
        write(handle, bytes.constData(), static_cast<std::size_t>(bytes.size()));
    close(handle);
}

void Log::end()
{
    WriteLog(QStringLiteral("*** Error-logging ended ***"));
    enabled_ = false;
}
