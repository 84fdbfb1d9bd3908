// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/file_places.h"

#include "platform/files.h"
#include "platform/runtime_error.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

/// Below these the system and its desktops put what the user has plugged in or connected.
constexpr std::array driveFolders{"/media/", "/run/media/", "/mnt/"};

QByteArray systemMounts()
{
    try {
        return ReadWholeFile(u"/proc/self/mounts"_s);
    } catch (const RuntimeError &) {
        return {}; // another system
    }
}

} // namespace

QStringList drivesOf(const QByteArray &mounts)
{
    QStringList drives;
    for (const QByteArray &line : mounts.split('\n')) {
        QByteArray folder = line.split(' ').value(1);
        const bool isDrive = std::any_of(driveFolders.begin(), driveFolders.end(),
                                         [&](const char *above) { return folder.startsWith(above); });
        if (isDrive)
            drives.append(QFile::decodeName(folder.replace("\\040", " ").replace("\\134", "\\")));
    }
    return drives;
}

QStringList filePlaces(const QString &programFolder)
{
    QStringList places{QDir::homePath(), QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation),
                       QStandardPaths::writableLocation(QStandardPaths::DesktopLocation),
                       QDir::cleanPath(nativePath(programFolder))};
    places += drivesOf(systemMounts());
    places.removeIf([](const QString &place) { return place.isEmpty() || !QFileInfo(place).isDir(); });
    places.removeDuplicates();
    return places;
}
