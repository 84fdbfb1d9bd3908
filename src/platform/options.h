// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/settings_table.h"

#include <QObject>
#include <QString>

#include <array>

class SettingsStore;

/// The run-time copy of the settings: for each setting the *edited* value, that is, what the options window's control shows at this moment. The window
/// writes here on every edit, so that an edit which was neither confirmed nor thrown away is seen by the rest of the program; that is required.
class Options : public QObject
{
    Q_OBJECT

public:
    /// Starts with every default. `appFolder` stands in for the folder of default paths.
    Options(SettingsStore &store, const QString &appFolder);

    QString text(Setting id) const;
    /// A box's value: 0, 1 or 2. A stored text that is no number gives 0.
    int box(Setting id) const;
    /// True if a box is exactly 1, or an option is set.
    bool isOn(Setting id) const;
    /// The number in a text field by `Val`, as a double: callers round and check widths themselves.
    double number(Setting id) const;

    void setText(Setting id, const QString &value);
    void setBox(Setting id, int value);
    /// Sets an option and clears the others of its group (scroller position, export layout, difficulty).
    void setOption(Setting id);

    /// Store to run-time copy, for all keys of the table.
    void GetSettings();
    /// Repairs blank fields, writes every key to the store and emits `applied`.
    void ApplySettings();
    void FillBlankFields();

    /// Straight from the store at the point of use, past the edited value, as some readers do.
    QString stored(Setting id) const;
    bool storedIsOn(Setting id) const;

    SettingsStore &store() const { return store_; }

signals:
    void edited(Setting id);
    void applied();

private:
    SettingsStore &store_;
    QString appFolder_;
    std::array<QString, static_cast<std::size_t>(Setting::Count)> values_;
};
