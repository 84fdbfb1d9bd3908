// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/settings_store.h"

#include <QByteArray>
#include <QDateTime>
#include <QMap>

/// The settings store in a file of the user's own: UTF-8 lines "key=value" below "[section]", with "%XX" for
/// what would break a line. Several running programs may share it: a save takes what others have written in
/// the meantime, adds its own values and replaces the file atomically, under a lock. A file that holds more
/// than settings is kept beside as ".bak" before it is replaced for the first time.
class SettingsFile : public SettingsStore
{
public:
    /// `file` is a native path; nothing is read before the first question. Its folder is made by the first
    /// save.
    explicit SettingsFile(const QString &file = defaultFile());

    /// "Wortel-Meister/settings.ini" in the user's folder of configurations.
    static QString defaultFile();

    QString GetSetting(const QString &section, const QString &key, const QString &fallback) const override;
    /// Throws RuntimeError if the file cannot be written; the value then holds for this run and goes with the
    /// next save that succeeds. Waits at most half a second for a lock that another program holds.
    void SaveSetting(const QString &section, const QString &key, const QString &value) override;
    void SaveSettings(const QString &section, const QList<QPair<QString, QString>> &values) override;

private:
    using Sections = QMap<QString, QMap<QString, QString>>;

    void refresh() const;
    void readFile() const;
    void writeFile();
    void keepGarbage();

    QString file_;
    mutable Sections stored_; ///< what the file held when it was last read
    Sections pending_;        ///< what this run has saved and the file does not hold yet
    mutable bool known_ = false;
    mutable bool garbage_ = false;
    mutable QDateTime readAt_; ///< the file's time and size when it was last read
    mutable qint64 readSize_ = -1;
};
