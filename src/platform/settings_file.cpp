// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/settings_file.h"

#include "platform/file_lock.h"
#include "platform/files.h"
#include "platform/runtime_error.h"
#include "platform/text_encoding.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

constexpr int lockWaitMs = 500;
constexpr int lockStaleMs = 30'000;

/// The text with "%XX" for "%", for control characters, for blanks at its ends and for what `alsoEscaped`
/// names.
QByteArray escaped(const QString &text, const char *alsoEscaped)
{
    const QByteArray plain = text.toUtf8();
    const QByteArray special = QByteArray("%") + alsoEscaped;
    QByteArray result;
    for (qsizetype i = 0; i < plain.size(); ++i) {
        const char byte = plain[i];
        const bool control = static_cast<unsigned char>(byte) < 0x20 || byte == 0x7F;
        const bool outerBlank = byte == ' ' && (i == 0 || i + 1 == plain.size());
        if (control || outerBlank || special.contains(byte))
            result += '%' + QByteArray(1, byte).toHex().toUpper();
        else
            result += byte;
    }
    return result;
}

QString unescaped(const QByteArray &bytes)
{
    return QString::fromUtf8(QByteArray::fromPercentEncoding(bytes)).normalized(QString::NormalizationForm_C);
}

/// What a line of the file may be.
enum class LineKind { Blank, Section, Entry, Garbage };

LineKind kindOf(const QByteArray &line)
{
    if (line.isEmpty())
        return LineKind::Blank;
    if (!line.isValidUtf8() || line.contains('\0'))
        return LineKind::Garbage;
    if (line.startsWith('['))
        return line.endsWith(']') ? LineKind::Section : LineKind::Garbage;
    return line.indexOf('=') > 0 ? LineKind::Entry : LineKind::Garbage;
}

} // namespace

SettingsFile::SettingsFile(const QString &file)
    : file_(file)
{}

QString SettingsFile::defaultFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           u"/Wortel-Meister/settings.ini"_s;
}

QString SettingsFile::GetSetting(const QString &section, const QString &key, const QString &fallback) const
{
    refresh();
    const QMap<QString, QString> own = pending_.value(section);
    if (const auto found = own.constFind(key); found != own.cend())
        return *found;
    return stored_.value(section).value(key, fallback);
}

void SettingsFile::SaveSetting(const QString &section, const QString &key, const QString &value)
{
    SaveSettings(section, {{key, value}});
}

void SettingsFile::SaveSettings(const QString &section, const QList<QPair<QString, QString>> &values)
{
    refresh();
    bool changes = !pending_.isEmpty();
    for (const auto &[key, value] : values) {
        const QMap<QString, QString> held = stored_.value(section);
        if (!changes && held.contains(key) && held.value(key) == value)
            continue;
        pending_[section][key] = value;
        changes = true;
    }
    if (changes)
        writeFile();
}

void SettingsFile::refresh() const
{
    const QFileInfo info(file_);
    if (known_ && info.lastModified() == readAt_ && (info.exists() ? info.size() : -1) == readSize_)
        return;
    readFile();
}

void SettingsFile::readFile() const
{
    const QFileInfo info(file_);
    known_ = true;
    readAt_ = info.lastModified();
    readSize_ = info.exists() ? info.size() : -1;
    stored_.clear();
    garbage_ = false;
    if (!info.exists())
        return;
    QByteArray bytes;
    try {
        bytes = ReadWholeFile(file_, largestLineFile);
    } catch (const RuntimeError &) {
        garbage_ = true;
        return;
    }
    QString section;
    if (bytes.startsWith(utf8Mark)) // saved by an editor
        bytes.remove(0, utf8Mark.size());
    const QList<QByteArray> lines = bytes.split('\n');
    for (const QByteArray &raw : lines) {
        const QByteArray line = raw.trimmed();
        switch (kindOf(line)) {
        case LineKind::Blank:
            break;
        case LineKind::Section:
            section = unescaped(line.mid(1, line.size() - 2));
            break;
        case LineKind::Entry: {
            const qsizetype equals = line.indexOf('=');
            stored_[section][unescaped(line.first(equals))] = unescaped(line.mid(equals + 1));
            break;
        }
        case LineKind::Garbage:
            garbage_ = true;
            break;
        }
    }
}

void SettingsFile::writeFile()
{
    QDir().mkpath(QFileInfo(file_).path());
    const FileLock lock(file_, lockStaleMs, lockWaitMs); // else two that save at once may lose one value
    readFile();
    if (garbage_)
        keepGarbage();
    Sections all = stored_;
    for (auto section = pending_.cbegin(); section != pending_.cend(); ++section)
        all[section.key()].insert(*section);
    QByteArray bytes;
    for (auto section = all.cbegin(); section != all.cend(); ++section) {
        bytes += '[' + escaped(section.key(), "[]") + "]\n";
        for (auto entry = section->cbegin(); entry != section->cend(); ++entry)
            bytes += escaped(entry.key(), "=[") + '=' + escaped(entry.value(), "") + '\n';
    }
    writeFileAtomically(file_, bytes);
    pending_.clear();
    readFile();
}

void SettingsFile::keepGarbage()
{
    const QString backup = file_ + u".bak"_s;
    QFile::remove(backup);
    const bool isCopied = QFileInfo(file_).isFile() && QFile::copy(file_, backup); // a pipe has no copy
    if (!isCopied && !QFile::rename(file_, backup))
        throw RuntimeError::of(RuntimeError::PermissionDenied);
}
