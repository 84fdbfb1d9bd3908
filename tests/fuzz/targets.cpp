// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/targets.h"

#include "platform/files.h"

#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

QString scratch(const QString &name)
{
    static const QTemporaryDir folder;
    return folder.filePath(name);
}

} // namespace

void fuzz::promise(bool kept, const char *what)
{
    if (kept)
        return;
    std::fprintf(stderr, "broken: %s\n", what);
    std::abort();
}

QString fuzz::asFile(const QByteArray &bytes)
{
    const QString path = scratch(u"in"_s);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || file.write(bytes) != bytes.size())
        std::abort();
    return storedPath(path);
}

QString fuzz::freshFile()
{
    const QString path = scratch(u"out"_s);
    QFile::remove(path);
    return storedPath(path);
}
