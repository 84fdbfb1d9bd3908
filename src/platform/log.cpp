// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/log.h"

#include "platform/files.h"
#include "platform/text.h"
#include "platform/windows1252.h"

#include <QFile>
#include <QFileInfo>

void Log::enable(const QString &file)
{
    file_ = file;
    enabled_ = true;
}

void Log::WriteLog(const QString &text)
{
    if (!enabled_)
        return;
    const QString native = nativePath(file_);
    const QFileInfo info(native);
    if (info.exists() && !info.isFile())
        return; // opening a pipe would wait for its reader
    QFile file(native);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered))
        return;
    const QString line = Trim(text) + QStringLiteral(" - ") + FormatTime(QTime::currentTime());
    file.write(windows1252::encodeLossy(line) + "\r\n");
}

void Log::end()
{
    WriteLog(QStringLiteral("*** Error-logging ended ***"));
    enabled_ = false;
}
