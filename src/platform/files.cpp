// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/files.h"

#include "platform/runtime_error.h"
#include "platform/text.h"
#include "platform/windows1252.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStringDecoder>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// The name as it is compared: composed, without regard to case.
QString foldedName(const QString &name) { return UCase(name.normalized(QString::NormalizationForm_C)); }

/// The entry of `folder` that is called `name` but for its case or normal form, or the empty string.
QString entryOf(const QString &folder, const QString &name)
{
    const QString wanted = foldedName(name);
    const QStringList entries = QDir(folder).entryList(
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString &entry : entries)
        if (foldedName(entry) == wanted)
            return entry;
    return {};
}

QString decodeList(const QByteArray &bytes)
{
    QStringDecoder decoder;
    if (isUtf8(bytes))
        decoder = QStringDecoder(QStringDecoder::Utf8);
    else if (bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF"))
        decoder = QStringDecoder(QStringDecoder::Utf16);
    else
        return windows1252::decode(bytes);
    return QString(decoder.decode(bytes)).normalized(QString::NormalizationForm_C);
}

[[noreturn]] void raise(int number) { throw RuntimeError::of(number); }

/// The error of a file that could not be opened for writing.
int openError(const QString &path)
{
    const QFileInfo info(path);
    const QFileInfo folder(info.absolutePath());
    if (!folder.isDir())
        return RuntimeError::PathNotFound;
    if (info.isDir())
        return 75;
    return !folder.isWritable() || (info.exists() && !info.isWritable()) ? RuntimeError::PermissionDenied
                                                                         : 75;
}

int writeError(QFileDevice::FileError error)
{
    switch (error) {
    case QFileDevice::ResourceError:
        return RuntimeError::DiskFull;
    case QFileDevice::PermissionsError:
        return RuntimeError::PermissionDenied;
    default:
        return 75;
    }
}

/// Writes everything or gives false. A disk that fills up takes a part first and tells its error with the
/// next write.
bool writeWhole(QFileDevice &file, const QByteArray &bytes)
{
    qint64 done = 0;
    while (done < bytes.size()) {
        const qint64 count = file.write(bytes.constData() + done, bytes.size() - done);
        if (count <= 0)
            return false;
        done += count;
    }
    return true;
}

/// For a file that may be written in a folder that may not: in place, and the old bytes put back if that
/// fails.
void writeInPlace(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadWrite | QIODevice::Unbuffered))
        raise(openError(path));
    const QByteArray old = file.readAll();
    if (file.seek(0) && writeWhole(file, bytes) && file.resize(bytes.size()))
        return;
    const int number = writeError(file.error());
    file.seek(0);
    writeWhole(file, old);
    file.resize(old.size());
    raise(number);
}

} // namespace

QString nativePath(const QString &stored)
{
    QString mapped = stored;
    mapped.replace(u'\\', u'/');
    if (mapped.isEmpty() || QFileInfo::exists(mapped))
        return mapped;
    QString found = mapped.startsWith(u'/') ? u"/"_s : QString();
    const QStringList parts = mapped.split(u'/', Qt::SkipEmptyParts);
    for (qsizetype i = 0; i < parts.size(); ++i) {
        QString entry = parts.at(i);
        if (!QFileInfo::exists(found + entry)) {
            entry = entryOf(found.isEmpty() ? u"."_s : found, entry);
            if (entry.isEmpty())
                return found + parts.mid(i).join(u'/') + (mapped.endsWith(u'/') ? u"/"_s : QString());
        }
        found += entry;
        if (i + 1 < parts.size() || mapped.endsWith(u'/'))
            found += u'/';
    }
    return found;
}

QString storedPath(const QString &native)
{
    return native.normalized(QString::NormalizationForm_C).replace(u'/', u'\\');
}

bool IsTextFile(const QString &path)
{
    const QString trimmed = Trim(path);
    return !trimmed.isEmpty() && QFileInfo(nativePath(trimmed)).isFile();
}

QString GetOnlyFileName(const QString &path)
{
    const qsizetype at = std::max(path.lastIndexOf(u'\\'), path.lastIndexOf(u'/'));
    return at < 0 ? QString() : path.mid(at + 1);
}

QString listBaseName(const QString &path) { return RTrimText(GetOnlyFileName(path), u".txt"_s); }

QByteArray ReadWholeFile(const QString &path)
{
    const QString native = nativePath(path);
    const QFileInfo info(native);
    if (!info.exists())
        raise(RuntimeError::FileNotFound);
    if (!info.isFile())
        raise(75); // a folder has no bytes, and a pipe would let the reader wait
    QFile file(native);
    if (!file.open(QIODevice::ReadOnly))
        raise(info.isReadable() ? 75 : RuntimeError::PermissionDenied);
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        raise(75);
    return bytes;
}

bool isUtf8(const QByteArray &bytes)
{
    if (bytes.startsWith("\xEF\xBB\xBF"))
        return true;
    const auto isAscii = [](char byte) { return static_cast<signed char>(byte) >= 0; };
    return !std::all_of(bytes.begin(), bytes.end(), isAscii) && bytes.isValidUtf8();
}

QStringList readListFile(const QString &path, bool keepBlank)
{
    QString text = decodeList(ReadWholeFile(path));
    if (text.contains(QChar::Null))
        text.remove(QChar::Null);
    QStringList entries;
    entries.reserve(text.size() / 10);
    const QChar *const end = text.constData() + text.size();
    for (const QChar *from = text.constData(); from < end;) {
        const QChar *stop = from;
        while (stop < end && *stop != u'\n' && *stop != u'\r')
            ++stop;
        const QChar *next = stop;
        if (next < end)
            next += *next == u'\r' && next + 1 < end && next[1] == u'\n' ? 2 : 1;
        while (from < stop && *from == u' ')
            ++from;
        while (stop > from && stop[-1] == u' ')
            --stop;
        if (stop > from || keepBlank)
            entries.append(QString(from, stop - from));
        from = next;
    }
    return entries;
}

void writeFileAtomically(const QString &path, const QByteArray &bytes)
{
    const QString native = nativePath(path);
    QSaveFile file(native);
    // Unbuffered, because a buffer that is written only in part when it is flushed counts as written.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        writeInPlace(native, bytes);
        return;
    }
    if (writeWhole(file, bytes) && file.commit())
        return;
    const int number = writeError(file.error());
    file.cancelWriting();
    raise(number);
}
