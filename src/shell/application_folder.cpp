// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/application_folder.h"

#include "platform/files.h"
#include "platform/product.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

namespace {

/// Written last when a folder has been filled: its text is the version of the program that filled it.
constexpr char16_t filledMark[] = u"/.filled";

bool holdsData(const QString &folder)
{
    return QFileInfo(folder + QStringLiteral("/text")).isDir() &&
           QFileInfo(folder + QStringLiteral("/facit")).isDir();
}

bool isFilled(const QString &folder)
{
    QFile mark(folder + QString::fromUtf16(filledMark));
    return mark.open(QIODevice::ReadOnly) && QString::fromUtf8(mark.readAll()) == product::version() &&
           holdsData(folder);
}

/// Copies what is missing, once what a copying that was cut off has left is gone. A copy appears under its
/// name only when it is whole.
void fill(const QString &folder, const QString &installedData)
{
    removeLeftOvers(folder);
    QDirIterator folders(folder, QDir::Dirs | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (folders.hasNext())
        removeLeftOvers(folders.next());
    QDirIterator files(installedData, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString source = files.next();
        const QString target = folder + source.mid(installedData.size());
        if (QFileInfo::exists(target))
            continue;
        QDir().mkpath(QFileInfo(target).path());
        writeFileAtomically(target, ReadWholeFile(source));
    }
    writeFileAtomically(folder + QString::fromUtf16(filledMark), product::version().toUtf8());
}

} // namespace

QString application_folder::withTrailingBackslash(const QString &folder)
{
    const QString stored = storedPath(folder);
    return stored.endsWith(u'\\') ? stored : stored + u'\\';
}

QString application_folder::find(const QString &programFolder, const QString &installedData,
                                 const QString &userFolder)
{
    if (holdsData(programFolder) && QFileInfo(programFolder).isWritable())
        return withTrailingBackslash(programFolder);
    if (!QFileInfo(installedData).isDir())
        return withTrailingBackslash(programFolder);
    try {
        if (!isFilled(userFolder))
            fill(userFolder, installedData);
    } catch (const std::exception &) {
        // A full disk, a home that cannot be written: unless an older version has filled the folder once, the
        // program runs from the installed data.
        if (!QFileInfo::exists(userFolder + QString::fromUtf16(filledMark)) || !holdsData(userFolder))
            return withTrailingBackslash(installedData);
    }
    return withTrailingBackslash(userFolder);
}
