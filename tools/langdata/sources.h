// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

namespace langdata {

/// The files taken out of the Debian packages, held to the versions the data was made from.
class Sources
{
public:
    /// `sums` names a file of "<sha256> <file name>" lines. Throws InputError if a file is
    /// missing or another version.
    Sources(const QString &folder, const QString &sums);

    QString path(const QString &name) const;
    /// Content of a source. Throws InputError if `sums` did not name it.
    QByteArray content(const QString &name) const;

private:
    QString folder_;
    QHash<QString, QByteArray> contents_;
};

} // namespace langdata
