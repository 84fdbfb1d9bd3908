// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QMultiHash>
#include <QString>

/// What was laid down in a folder: which version of which data, and the checksum of each file. It is a text
/// of one line a file; a line that is damaged counts as not there, and no path in it is ever written to.
class DataManifest
{
public:
    /// Of the folder (native path); empty if it has none, or an unreadable one.
    static DataManifest read(const QString &folder);
    /// Throws as writeFileAtomically.
    void write(const QString &folder) const;

    /// True if exactly these data have been laid down to the last file.
    bool isComplete(const QString &version, const QByteArray &fingerprint) const;
    /// True if this or an earlier version has been.
    bool wasComplete() const { return !version_.isEmpty(); }
    bool isNewerThan(const QString &version) const;
    void setComplete(const QString &version, const QByteArray &fingerprint);
    /// Files are being laid down: until the next setComplete nothing is said of the whole.
    void setUnfinished() { fingerprint_.clear(); }

    // Paths are relative to the folder, with slashes; their case does not matter.
    bool knows(const QString &path) const { return sums_.contains(path.toCaseFolded()); }
    bool hasLaid(const QString &path, const QByteArray &sum) const
    {
        return sums_.contains(path.toCaseFolded(), sum);
    }
    /// One more content that the file may have from us.
    void add(const QString &path, const QByteArray &sum);
    /// The one content that the file has from us.
    void replace(const QString &path, const QByteArray &sum);

private:
    QString version_;
    QByteArray fingerprint_;
    QMultiHash<QString, QByteArray> sums_; ///< by the path without its case
};
