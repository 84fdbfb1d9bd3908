// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/data_upgrade.h"

#include "platform/files.h"
#include "shell/data_manifest.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr auto sumKind = QCryptographicHash::Sha256;

/// The files without which no start is possible, whatever list is chosen.
constexpr std::array needed{"text/Hauptbausteine.Txt", "facit/Hauptbausteine.lex", "affix/prefix.afx",
                            "affix/suffix.afx"};

bool isNeeded(const QString &name)
{
    return std::ranges::any_of(needed, [&](const char *file) { return name == QLatin1String(file); });
}

bool isThere(const QString &path) { return QFileInfo(nativePath(path)).isFile(); }

/// True if `userFolder` has all of `needed` that is installed.
bool hasNeeded(const QString &userFolder, const QString &installedData)
{
    return std::ranges::all_of(needed, [&](const char *file) {
        const QString name = u'/' + QLatin1String(file);
        return isThere(userFolder + name) || !isThere(installedData + name);
    });
}

struct InstalledFile
{
    QString name; ///< relative, with slashes
    qint64 size;
    qint64 changed; ///< milliseconds since 1970
};

std::vector<InstalledFile> filesBelow(const QString &folder)
{
    std::vector<InstalledFile> all;
    QDirIterator files(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        files.next();
        const QFileInfo info = files.fileInfo();
        all.push_back(
            {info.filePath().mid(folder.size() + 1), info.size(), info.lastModified().toMSecsSinceEpoch()});
    }
    std::ranges::sort(all, {}, &InstalledFile::name);
    return all;
}

/// Tells two installations apart without reading their files.
QByteArray fingerprintOf(const std::vector<InstalledFile> &files)
{
    QCryptographicHash hash(sumKind);
    for (const InstalledFile &file : files)
        hash.addData(u"%1|%2|%3\n"_s.arg(file.name).arg(file.size).arg(file.changed).toUtf8());
    return hash.result().toHex();
}

/// The checksum of a file of the user's, or nothing if it cannot be read.
QByteArray sumOfFile(const QString &path)
{
    QFile file(path);
    QCryptographicHash hash(sumKind);
    return file.open(QIODevice::ReadOnly) && hash.addData(&file) ? hash.result().toHex() : QByteArray();
}

/// One run over the installed files.
class Upgrade
{
public:
    Upgrade(const QString &userFolder, const QString &installedData, DataManifest &laid)
        : userFolder_(userFolder)
        , installedData_(installedData)
        , laid_(laid)
        , begins_(!data_upgrade::holdsData(userFolder))
    {}

    /// True if every file is as it should be.
    bool run(const std::vector<InstalledFile> &files)
    {
        removeAllLeftOvers();
        for (const InstalledFile &file : files)
            look(file);
        // Written first, so that an upgrade that is cut off does not take its own files for edited ones.
        laid_.setUnfinished();
        for (const Step &step : steps_)
            if (step.replaces)
                laid_.add(step.name, step.sum);
        QDir().mkpath(userFolder_);
        laid_.write(userFolder_);
        return std::ranges::count_if(steps_, [this](const Step &step) { return !lay(step); }) == 0;
    }

private:
    struct Step
    {
        QString name;
        QString target;
        QByteArray sum;
        bool replaces;
    };

    void removeAllLeftOvers() const
    {
        removeLeftOvers(userFolder_);
        QDirIterator folders(userFolder_, QDir::Dirs | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
        while (folders.hasNext())
            removeLeftOvers(folders.next());
    }

    void look(const InstalledFile &file)
    {
        const QString target = nativePath(userFolder_ + u'/' + file.name);
        const QFileInfo old(target);
        if (!old.exists() && !old.isSymLink()) {
            if (begins_ || isNeeded(file.name) || !laid_.knows(file.name))
                steps_.push_back({file.name, target, sumOfInstalled(file), false});
            return;
        }
        if (!old.isFile() || (!laid_.knows(file.name) && old.size() != file.size))
            return;
        const QByteArray present = sumOfFile(target);
        const QByteArray sum = sumOfInstalled(file);
        if (present == sum)
            laid_.replace(file.name, sum);
        else if (laid_.hasLaid(file.name, present))
            steps_.push_back({file.name, target, sum, true});
    }

    QByteArray sumOfInstalled(const InstalledFile &file) const
    {
        return QCryptographicHash::hash(ReadWholeFile(installedData_ + u'/' + file.name), sumKind).toHex();
    }

    bool lay(const Step &step)
    {
        try {
            QDir().mkpath(QFileInfo(step.target).path());
            writeFileAtomically(step.target, ReadWholeFile(installedData_ + u'/' + step.name));
        } catch (const std::exception &) {
            return false;
        }
        laid_.replace(step.name, step.sum);
        return true;
    }

    QString userFolder_;
    QString installedData_;
    DataManifest &laid_;
    bool begins_;
    std::vector<Step> steps_;
};

} // namespace

bool data_upgrade::holdsData(const QString &folder)
{
    return QFileInfo(folder + u"/text"_s).isDir() && QFileInfo(folder + u"/facit"_s).isDir();
}

bool data_upgrade::isWhole(const QString &userFolder, const QString &installedData)
{
    return holdsData(userFolder) && DataManifest::read(userFolder).wasComplete() &&
           hasNeeded(userFolder, installedData);
}

void data_upgrade::bringUpToDate(const QString &userFolder, const QString &installedData,
                                 const QString &version)
{
    const std::vector<InstalledFile> files = filesBelow(installedData);
    const QByteArray fingerprint = fingerprintOf(files);
    DataManifest laid = DataManifest::read(userFolder);
    const bool isUpToDate = laid.isComplete(version, fingerprint) && hasNeeded(userFolder, installedData);
    if (holdsData(userFolder) && (isUpToDate || laid.isNewerThan(version)))
        return;
    if (Upgrade(userFolder, installedData, laid).run(files))
        laid.setComplete(version, fingerprint);
    laid.write(userFolder);
}
