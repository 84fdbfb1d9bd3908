// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/command_line.h"

#include "platform/files.h"
#include "platform/text.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

/// A switch has one "/" and stands before its value's colon; any other text that begins so is a path, also of
/// a session that is gone.
bool namesAFile(const QString &argument)
{
    if (QFileInfo(argument).isFile())
        return true;
    const QString name = argument.section(u':', 0, 0).mid(1);
    return argument.startsWith(u'/') &&
           (name.contains(u'/') || name.endsWith(u".wlx"_s, Qt::CaseInsensitive));
}

} // namespace

QStringList command_line::read(const QStringList &arguments)
{
    QStringList result;
    for (const QString &argument : arguments)
        result << (namesAFile(argument) ? storedPath(QFileInfo(argument).absoluteFilePath()) : argument);
    return result;
}

QString command_line::text(const QStringList &arguments) { return arguments.join(u' '); }

command_line::Sessions command_line::sessionsOf(const QStringList &arguments)
{
    Sessions result;
    for (const QString &argument : arguments) {
        if (IsTextFile(argument)) {
            result.there << Trim(argument);
            continue;
        }
        QStringList missing;
        const QStringList pieces = argument.split(u' ', Qt::SkipEmptyParts);
        for (const QString &piece : pieces)
            (IsTextFile(piece) ? result.there : piece.startsWith(u'/') ? result.switches : missing) << piece;
        // A name with blanks that was mistyped is told as it was given.
        result.missing << (missing == pieces ? QStringList(missing.join(u' ')) : missing);
    }
    result.missing.removeAll(QString());
    return result;
}
