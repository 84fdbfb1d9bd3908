// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/files.h"

#include "platform/runtime_error.h"
#include "platform/text.h"
#include "platform/text_encoding.h"
#include "platform/windows1252.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <type_traits>

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

/// The trimmed lines between `from` and `end` as texts. `Unit` is a byte or a character; `decode` makes a
/// text of some.
template <typename Unit, typename Decode>
QStringList entriesOf(const Unit *from, const Unit *end, bool keepBlank, Decode decode)
{
    QStringList entries;
    entries.reserve((end - from) / 10);
    while (from < end) {
        const Unit *stop = from;
        bool hasNul = false;
        for (; stop < end; ++stop) {
            const auto unit = static_cast<std::make_unsigned_t<Unit>>(*stop);
            if (unit > '\r') // one comparison for nearly all
                continue;
            if (unit == '\n' || unit == '\r')
                break;
            hasNul = hasNul || unit == 0;
        }
        const Unit *next = stop;
        if (next < end)
            next += *next == '\r' && next + 1 < end && next[1] == '\n' ? 2 : 1;
        while (from < stop && *from == ' ')
            ++from;
        while (stop > from && stop[-1] == ' ')
            --stop;
        QString entry = decode(from, stop - from);
        if (hasNul)
            entry = Trim(entry.remove(QChar::Null));
        if (keepBlank || !entry.isEmpty())
            entries.append(std::move(entry));
        from = next;
    }
    return entries;
}

[[noreturn]] void raise(int number) { throw RuntimeError::of(number); }

int readError(int systemError)
{
    switch (systemError) {
    case ENOENT:
    case ENOTDIR:
        return RuntimeError::FileNotFound;
    case EACCES:
    case EPERM:
        return RuntimeError::PermissionDenied;
    default:
        return RuntimeError::PathAccess;
    }
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

QString nameWithoutEnding(const QString &path)
{
    const QString name = GetOnlyFileName(path);
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot > 0 ? name.left(dot) : name;
}

QString listBaseName(const QString &path) { return RTrimText(GetOnlyFileName(path), u".txt"_s); }

QByteArray ReadWholeFile(const QString &path, qint64 limit)
{
    const QByteArray native = QFile::encodeName(nativePath(path));
    const int handle = open(native.constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (handle < 0)
        raise(readError(errno));
    QFile file;
    file.open(handle, QIODevice::ReadOnly | QIODevice::Unbuffered, QFile::AutoCloseHandle);
    struct stat facts
    {};
    if (fstat(handle, &facts) != 0 || !S_ISREG(facts.st_mode))
        raise(RuntimeError::PathAccess); // a folder has no bytes, and a device may have no end
    if (facts.st_size > limit)
        raise(RuntimeError::OutOfMemory);
    constexpr qint64 piece = 1 << 16;
    QByteArray bytes = file.read(facts.st_size + 1); // one more tells whether it has grown meanwhile
    while (bytes.size() > facts.st_size && bytes.size() <= limit) {
        const QByteArray more = file.read(piece);
        if (more.isEmpty())
            break;
        bytes += more;
    }
    if (file.error() != QFileDevice::NoError)
        raise(RuntimeError::PathAccess);
    if (bytes.size() > limit)
        raise(RuntimeError::OutOfMemory);
    return bytes;
}

QStringList readListFile(const QString &path, bool keepBlank)
{
    const QByteArray bytes = ReadWholeFile(path, largestLineFile);
    const TextEncoding encoding = encodingOf(bytes);
    if (encoding == TextEncoding::Windows1252) // each entry by itself, which spares a copy of the whole
        return entriesOf(bytes.begin(), bytes.end(), keepBlank, [](const char *from, qsizetype count) {
            return windows1252::decode(QByteArrayView(from, count));
        });
    const QString text = decodeText(bytes, encoding);
    const auto *const units = reinterpret_cast<const char16_t *>(text.utf16());
    return entriesOf(units, units + text.size(), keepBlank, [](const char16_t *from, qsizetype count) {
        return QString(reinterpret_cast<const QChar *>(from), count);
    });
}
