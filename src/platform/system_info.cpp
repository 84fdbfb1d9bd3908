// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system_info.h"

#include "platform/files.h"
#include "platform/log.h"
#include "platform/runtime_error.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QOperatingSystemVersion>
#include <QStandardPaths>
#include <QSysInfo>
#include <QUrl>

#ifdef Q_OS_UNIX
#include <pwd.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace {

struct OsRow
{
    QLatin1StringView version;
    QLatin1StringView build; ///< empty: any
    QLatin1StringView name;
};

constexpr OsRow osNames[] = {
    {"1.4.0"_L1, "950"_L1, "Windows 95 Alpha"_L1},
    {"1.4.0"_L1, "1111"_L1, "Windows 95 B (OSR 2/OSR 2.1)"_L1},
    {"1.4.0"_L1, "1212"_L1, "Windows 95 B (OSR 2.5)"_L1},
    {"1.4.0"_L1, ""_L1, "Windows 95, Build n/a"_L1},
    {"1.4.10"_L1, ""_L1, "Windows 98"_L1},
    {"2.5.0"_L1, ""_L1, "Windows 2000"_L1},
    {"1.4.90"_L1, ""_L1, "Windows ME"_L1},
    {"2.5.1"_L1, ""_L1, "Windows XP"_L1},
};

const QByteArray emptyList =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<xbel version=\"1.0\"\n"
    "      xmlns:bookmark=\"http://www.freedesktop.org/standards/desktop-bookmarks\"\n"
    "      xmlns:mime=\"http://www.freedesktop.org/standards/shared-mime-info\">\n"
    "</xbel>\n";

/// One entry of the list of recent documents.
QByteArray bookmark(const QByteArray &address, const QString &mimeType)
{
    const QByteArray now = QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs).toUtf8();
    return "  <bookmark href=\"" + address + "\" added=\"" + now + "\" modified=\"" + now + "\" visited=\"" +
           now +
           "\">\n    <info>\n      <metadata owner=\"http://freedesktop.org\">\n        <mime:mime-type "
           "type=\"" +
           mimeType.toHtmlEscaped().toUtf8() +
           "\"/>\n        <bookmark:applications>\n          <bookmark:application name=\"Wortel-Meister\" "
           "exec=\"&apos;wortel %u&apos;\" modified=\"" +
           now +
           "\" count=\"1\"/>\n        </bookmark:applications>\n      </metadata>\n    </info>\n  "
           "</bookmark>\n";
}

/// `list` with the entry of `address` at its end and nowhere else; empty if `list` is no such list.
QByteArray withBookmark(QByteArray list, const QByteArray &address, const QString &mimeType)
{
    if (!list.contains("xmlns:bookmark=") || !list.contains("xmlns:mime="))
        return {};
    const qsizetype old = list.indexOf("<bookmark href=\"" + address + '"');
    if (old >= 0) {
        const QByteArray closing = "</bookmark>";
        const qsizetype close = list.indexOf(closing, old);
        if (close < 0)
            return {};
        qsizetype from = old;
        while (from > 0 && list[from - 1] == ' ')
            --from;
        qsizetype to = close + closing.size();
        if (to < list.size() && list[to] == '\n')
            ++to;
        list.remove(from, to - from);
    }
    const qsizetype end = list.lastIndexOf("</xbel>");
    return end < 0 ? QByteArray() : list.insert(end, bookmark(address, mimeType));
}

} // namespace

QString osName(const QString &version, const QString &build)
{
    for (const OsRow &row : osNames)
        if (version == row.version && (row.build.isEmpty() || build == row.build))
            return row.name;
    return u"Not Available"_s;
}

QString GetOSName()
{
#ifdef Q_OS_WIN
    const QOperatingSystemVersion version = QOperatingSystemVersion::current();
    const QString numbers = u"2.%1.%2"_s.arg(version.majorVersion()).arg(version.minorVersion());
    const QString known = osName(numbers, QString::number(version.microVersion()));
    if (known != osName({}, {}))
        return known;
#endif
    return QSysInfo::prettyProductName();
}

QString GetUserName()
{
#ifdef Q_OS_UNIX
    if (const passwd *entry = getpwuid(geteuid())) {
        const QString fullName = QString::fromLocal8Bit(entry->pw_gecos).section(u',', 0, 0).trimmed();
        return fullName.isEmpty() ? QString::fromLocal8Bit(entry->pw_name) : fullName;
    }
#endif
    return qEnvironmentVariable("USER", qEnvironmentVariable("USERNAME"));
}

bool KillFile(const QString &path, Log *log)
{
    QFile file(nativePath(path));
    const QFileInfo info(file);
    if (!info.exists() && !info.isSymLink())
        return false;
    if (file.remove())
        return true;
    if (log) {
        const RuntimeError error = RuntimeError::of(info.isDir() ? 75 : RuntimeError::PermissionDenied);
        log->WriteLog(u"Error %1 ("_s.arg(error.number()) + error.description() +
                      u") in procedure KillFile of Module modMain"_s);
        log->WriteLog(path + u" could not be deleted"_s);
    }
    return false;
}

void AddToRecentDocs(const QString &path, const QString &mimeType)
{
    const QFileInfo document(nativePath(path));
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    if (!document.isFile() || !QFileInfo(folder).isDir())
        return;
    const QString file = folder + u"/recently-used.xbel"_s;
    const QByteArray address = QUrl::fromLocalFile(document.absoluteFilePath())
                                   .toEncoded(QUrl::FullyEncoded)
                                   .replace('&', "&amp;")
                                   .replace('\'', "&apos;");
    try {
        const QByteArray old = QFileInfo::exists(file) ? ReadWholeFile(file) : emptyList;
        const QByteArray list = withBookmark(old, address, mimeType);
        if (!list.isEmpty())
            writeFileAtomically(file, list);
    } catch (const RuntimeError &) {
        return; // a list that cannot be read or written is the desktop's business
    }
}
