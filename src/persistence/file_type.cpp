// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/file_type.h"

#include "platform/files.h"
#include "platform/procedure.h"
#include "platform/runtime_error.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSettings>
#include <QStandardPaths>

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr auto form = "frmOptions";

void startIfThere(const QString &program, const QStringList &arguments)
{
    const QString path = QStandardPaths::findExecutable(program);
    if (!path.isEmpty())
        QProcess::startDetached(path, arguments);
}

#ifdef Q_OS_WIN

const QString registryRoot = u"HKEY_CURRENT_USER\\Software\\Classes"_s;

#else

QByteArray mimePackage(const QString &)
{
    return R"(<?xml version="1.0" encoding="UTF-8"?>
<mime-info xmlns="http://www.freedesktop.org/standards/shared-mime-info">
  <mime-type type="application/x-wortel-session">
    <comment>Wortel session</comment>
    <comment xml:lang="de">Wortel Sitzung</comment>
    <glob pattern="*.wlx"/>
  </mime-type>
</mime-info>
)";
}

/// An argument of a desktop entry's command line: in double quotes, and what means something within them or
/// to the entry itself behind a backslash or doubled.
QString quotedForExec(const QString &path)
{
    QString quoted;
    for (const QChar character : path) {
        if (character == u'\\')
            quoted += u"\\\\\\"_s; // behind a backslash of the quoting; each of them doubled by the entry's
                                   // own rules
        else if (character == u'"' || character == u'`' || character == u'$')
            quoted += u"\\\\"_s;
        else if (character == u'%')
            quoted += u'%';
        quoted += character;
    }
    return u'"' + quoted + u'"';
}

QByteArray desktopEntry(const QString &program)
{
    // Not shown in menus: it is there for the double click, also beside the entry of an installed copy.
    return u"[Desktop Entry]\n"
           "Type=Application\n"
           "Name=Wortel-Meister\n"
           "Icon=wortel-meister\n"
           "Exec=%1 %F\n"
           "Terminal=false\n"
           "NoDisplay=true\n"
           "MimeType=application/x-wortel-session;\n"_s.arg(quotedForExec(program))
               .toUtf8();
}

QByteArray resource(const QString &name)
{
    QFile file(u":/icons/"_s + name);
    if (!file.open(QIODevice::ReadOnly))
        throw RuntimeError::of(RuntimeError::FileNotFound);
    return file.readAll();
}

struct Entry
{
    const char16_t *path; ///< below the user's data folder
    QByteArray (*content)(const QString &program);
};

constexpr std::array<Entry, 4> entries{{
    {u"mime/packages/wortel-meister-session.xml", mimePackage},
    {u"applications/wortel-meister-session.desktop", desktopEntry},
    {u"icons/hicolor/scalable/mimetypes/application-x-wortel-session.svg",
     [](const QString &) { return resource(u"application-x-wortel-session.svg"_s); }},
    {u"icons/hicolor/scalable/apps/wortel-meister.svg",
     [](const QString &) { return resource(u"wortel-meister.svg"_s); }},
}};

QString dataFolder() { return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u'/'; }

QString pathOf(const Entry &entry) { return dataFolder() + QString::fromUtf16(entry.path); }

#endif

} // namespace

FileType::FileType(Log &log, const QString &program, Start start)
    : log_(log)
    , program_(program)
    , start_(start ? std::move(start) : Start(startIfThere))
{}

#ifdef Q_OS_WIN

void FileType::registerSessions()
{
    Procedure step{log_, "Command7_Click", form};
    const QString folder = QFileInfo(program_).absolutePath() + u'/';
    step([&] {
        QSettings classes(registryRoot, QSettings::NativeFormat);
        classes.setValue(u".wlx/."_s, u"Wortel"_s);
        classes.setValue(u"Wortel/."_s, u"Wortel Sitzung"_s);
        classes.setValue(u"Wortel/shell/open/command/."_s,
                         QString(u'"' + QDir::toNativeSeparators(program_) + u"\" %1"_s));
        classes.setValue(u"Wortel/DefaultIcon/."_s, QDir::toNativeSeparators(folder + u"morpheme.ico"_s));
    });
}

void FileType::removeSessions()
{
    Procedure step{log_, "Command8_Click", form};
    step([&] {
        QSettings classes(registryRoot, QSettings::NativeFormat);
        classes.remove(u"Wortel"_s);
        classes.remove(u".wlx"_s);
    });
}

void FileType::refreshIndexes() {}

#else

void FileType::registerSessions()
{
    Procedure step{log_, "Command7_Click", form};
    for (const Entry &entry : entries)
        step([&] {
            const QString path = pathOf(entry);
            if (!QDir().mkpath(QFileInfo(path).path()))
                throw RuntimeError::of(RuntimeError::PathNotFound);
            writeFileAtomically(path, entry.content(program_));
        });
    step([&] { refreshIndexes(); });
}

void FileType::removeSessions()
{
    Procedure step{log_, "Command8_Click", form};
    for (const Entry &entry : entries)
        QFile::remove(pathOf(entry));
    step([&] { refreshIndexes(); });
}

void FileType::refreshIndexes()
{
    // Both need their folder; without one there is nothing to bring up to date.
    if (QFileInfo(dataFolder() + u"mime/packages"_s).isDir())
        start_(u"update-mime-database"_s, {dataFolder() + u"mime"_s});
    if (QFileInfo(dataFolder() + u"applications"_s).isDir())
        start_(u"update-desktop-database"_s, {dataFolder() + u"applications"_s});
}

#endif
