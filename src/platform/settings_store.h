// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QPair>
#include <QString>

/// The per-user settings: strings addressed by section (`Settings`, `Path`, `Web`, `MemoryGame`) and key,
/// under the application name "Wortel-Meister". Two operations: read with a default, and save. A key never
/// saved gives the default.
class SettingsStore
{
public:
    virtual ~SettingsStore() = default;
    virtual QString GetSetting(const QString &section, const QString &key, const QString &fallback) const = 0;
    virtual void SaveSetting(const QString &section, const QString &key, const QString &value) = 0;
    /// Saves many keys of one section. A store that writes a file does it with one write.
    virtual void SaveSettings(const QString &section, const QList<QPair<QString, QString>> &values)
    {
        for (const auto &[key, value] : values)
            SaveSetting(section, key, value);
    }
};
