// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "textfiles.h"

#include <QFile>
#include <QSaveFile>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace langdata {
namespace {

/// German words need only the half of Windows-1252 that it shares with Latin-1.
bool isWordByte(char byte)
{
    const auto code = static_cast<unsigned char>(byte);
    return (code >= 0x20 && code < 0x7F) || code >= 0xA0;
}

} // namespace

QByteArray readBytes(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw InputError(u"%1: %2"_s.arg(path, file.errorString()));
    return file.readAll();
}

QStringList readGameList(const QString &path)
{
    const QByteArray bytes = readBytes(path);
    if (!bytes.endsWith("\r\n"))
        throw InputError(u"%1: the last line does not end with CR LF"_s.arg(path));
    QStringList entries;
    qsizetype start = 0;
    while (start < bytes.size()) {
        const qsizetype end = bytes.indexOf("\r\n", start);
        const QByteArray line = bytes.mid(start, end - start);
        const int number = int(entries.size()) + 1;
        if (!std::all_of(line.begin(), line.end(), isWordByte))
            throw InputError(u"%1, line %2: no Windows-1252 text or a bare line end"_s.arg(path).arg(number));
        if (line.isEmpty() || line.trimmed() != line)
            throw InputError(u"%1, line %2: blank or not trimmed"_s.arg(path).arg(number));
        entries << QString::fromLatin1(line);
        start = end + 2;
    }
    return entries;
}

QStringList readWords(const QString &path)
{
    QStringList lines;
    const QStringList all = QString::fromUtf8(readBytes(path)).split(u'\n');
    for (const QString &raw : all) {
        const QString line = raw.section(u'#', 0, 0).trimmed();
        lines << line.split(u' ', Qt::SkipEmptyParts);
    }
    return lines;
}

QByteArray gameListBytes(const QStringList &entries)
{
    QByteArray bytes;
    for (const QString &entry : entries) {
        const QByteArray line = entry.toLatin1();
        if (QString::fromLatin1(line) != entry || !std::all_of(line.begin(), line.end(), isWordByte))
            throw InputError(u"\"%1\" cannot be written in Windows-1252"_s.arg(entry));
        bytes += line + "\r\n";
    }
    return bytes;
}

void writeWhole(const QString &path, const QByteArray &bytes)
{
    QSaveFile file(path);
    file.setDirectWriteFallback(false);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
        throw InputError(u"%1: %2"_s.arg(path, file.errorString()));
}

} // namespace langdata
