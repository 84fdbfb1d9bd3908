// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/application_folder.h"

#include "platform/files.h"
#include "platform/product.h"
#include "shell/data_upgrade.h"

#include <QFileInfo>

QString application_folder::withTrailingBackslash(const QString &folder)
{
    const QString stored = storedPath(folder);
    return stored.endsWith(u'\\') ? stored : stored + u'\\';
}

QString application_folder::find(const QString &programFolder, const QString &installedData,
                                 const QString &userFolder)
{
    if (data_upgrade::holdsData(programFolder) && QFileInfo(programFolder).isWritable())
        return withTrailingBackslash(programFolder);
    if (!QFileInfo(installedData).isDir())
        return withTrailingBackslash(programFolder);
    try {
        data_upgrade::bringUpToDate(userFolder, installedData, product::version());
    } catch (const std::exception &) {
        // A full disk, a home that cannot be written: what lies there may do all the same.
    }
    return withTrailingBackslash(data_upgrade::isWhole(userFolder, installedData) ? userFolder
                                                                                  : installedData);
}
