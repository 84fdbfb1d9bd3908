// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/handbook/compiled_help.h"

#include "platform/files.h"
#include "platform/runtime_error.h"

#include <QFileInfo>
#include <QStringList>

#include <algorithm>
#include <array>

namespace {

#ifdef Q_OS_WIN
constexpr bool hasViewerOfItsOwn = true;
#else
constexpr bool hasViewerOfItsOwn = false;
#endif

constexpr std::array<const char *, 3> types{
    "application/vnd.ms-htmlhelp=", "application/x-chm=", "application/chm="};

bool namesViewer(const QByteArray &line)
{
    return std::any_of(types.begin(), types.end(), [&line](const char *type) {
        return line.startsWith(type) && line.contains(".desktop");
    });
}

} // namespace

QString compiled_help::file(const QString &appFolder)
{
    const QString path = nativePath(appFolder + QStringLiteral("wortel.chm"));
    return QFileInfo(path).isFile() ? path : QString();
}

bool compiled_help::canBeShown(const QStringList &dataFolders)
{
    if (hasViewerOfItsOwn)
        return true;
    return std::any_of(dataFolders.begin(), dataFolders.end(), [](const QString &folder) {
        try {
            const QByteArray cache = ReadWholeFile(folder + QStringLiteral("/applications/mimeinfo.cache"));
            const QList<QByteArray> lines = cache.split('\n');
            return std::any_of(lines.begin(), lines.end(), namesViewer);
        } catch (const RuntimeError &) {
            return false;
        }
    });
}
