// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/data_manifest.h"

#include "platform/files.h"

#include <QVersionNumber>

#include <algorithm>

using namespace Qt::StringLiterals;

// Of the form
//   1.0.0 FINGERPRINT
//   SUM text/Hauptbausteine.txt
// with "-" for the fingerprint while files are being laid down.

namespace {

constexpr char16_t fileName[] = u"/.laid";
const QByteArray unfinished = "-";

} // namespace

DataManifest DataManifest::read(const QString &folder)
{
    DataManifest manifest;
    QByteArray text;
    try {
        text = ReadWholeFile(folder + QString::fromUtf16(fileName));
    } catch (const std::exception &) {
        return manifest;
    }
    bool first = true;
    for (const QByteArray &line : text.split('\n')) {
        const qsizetype blank = line.indexOf(' ');
        if (std::exchange(first, false)) {
            const QString version = QString::fromUtf8(line.left(blank));
            if (!QVersionNumber::fromString(version).isNull())
                manifest.version_ = version;
            if (blank > 0 && line.mid(blank + 1) != unfinished)
                manifest.fingerprint_ = line.mid(blank + 1);
        } else if (blank > 0) {
            manifest.add(QString::fromUtf8(line.mid(blank + 1)), line.left(blank));
        }
    }
    return manifest;
}

void DataManifest::write(const QString &folder) const
{
    QByteArrayList lines;
    for (auto sum = sums_.cbegin(); sum != sums_.cend(); ++sum)
        lines << sum.value() + ' ' + sum.key().toUtf8();
    std::ranges::sort(lines);
    lines.prepend(version_.toUtf8() + ' ' + (fingerprint_.isEmpty() ? unfinished : fingerprint_));
    writeFileAtomically(folder + QString::fromUtf16(fileName), lines.join('\n') + '\n');
}

bool DataManifest::isComplete(const QString &version, const QByteArray &fingerprint) const
{
    return version_ == version && fingerprint_ == fingerprint;
}

bool DataManifest::isNewerThan(const QString &version) const
{
    return QVersionNumber::fromString(version_) > QVersionNumber::fromString(version);
}

void DataManifest::setComplete(const QString &version, const QByteArray &fingerprint)
{
    version_ = version;
    fingerprint_ = fingerprint;
}

void DataManifest::add(const QString &path, const QByteArray &sum)
{
    if (!hasLaid(path, sum))
        sums_.insert(path.toCaseFolded(), sum);
}

void DataManifest::replace(const QString &path, const QByteArray &sum)
{
    sums_.remove(path.toCaseFolded());
    add(path, sum);
}
