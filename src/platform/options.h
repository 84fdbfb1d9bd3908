// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/settings_table.h"

#include <QObject>
#include <QString>

#include <array>

class Log;
class SettingsStore;

/// The run-time copy of the settings: for each setting the *edited* value, that is, what the options window's
/// control shows at this moment. The window writes here on every edit, so that an edit which was neither
/// confirmed nor thrown away is seen by the rest of the program; that is required.
class Options : public QObject
{
    Q_OBJECT

public:
    /// Starts with every default. `appFolder` stands in for the folder of default paths. A path below it is
    /// stored without it, so that it stays valid when the folder moves.
    Options(SettingsStore &store, const QString &appFolder, Log &log);

    QString text(Setting id) const;
    /// A box's value: 0, 1 or 2.
    int box(Setting id) const;
    /// True if a box is exactly 1, or an option is set.
    bool isOn(Setting id) const;
    /// The number in a text field by `Val`, as a double: callers round and check widths themselves.
    double number(Setting id) const;

    /// Takes a text as its field does: what the field's mask does not admit is dropped.
    void setText(Setting id, const QString &value);
    /// Throws RuntimeError 380 for a value that is not 0, 1 or 2.
    void setBox(Setting id, int value);
    /// Sets an option and clears the others of its group (scroller position, export layout, difficulty).
    void setOption(Setting id);
    /// The same, written to the store at once: chosen outside of the options window.
    void keepOption(Setting id);
    /// A text, written to the store at once as well.
    void keepText(Setting id, const QString &value);

    // What an options window does goes for its own rows of the table.

    /// Store to run-time copy. A stored value that fails its conversion is logged and the value from before
    /// stays.
    void GetSettings(SettingsWindow window = SettingsWindow::frmOptions);
    /// Repairs blank fields, writes every key to the store and, for the program's own window, emits
    /// `applied`. Returns false if the store could not be written.
    bool ApplySettings(SettingsWindow window = SettingsWindow::frmOptions);
    void FillBlankFields(SettingsWindow window = SettingsWindow::frmOptions);

    QString fallback(Setting id) const { return fallback(settingRow(id)); }
    /// Back to its default, in the store as well.
    void reset(Setting id);

    /// Remembers the values, for `IsChanged`.
    void subSnapShot(SettingsWindow window = SettingsWindow::frmOptions);
    bool IsChanged(SettingsWindow window = SettingsWindow::frmOptions) const;

    /// Straight from the store at the point of use, past the edited value, as some readers do.
    QString stored(Setting id) const;
    /// The same as a boolean: any number but 0 is on. A text that is neither number nor boolean is logged and
    /// gives the default.
    bool storedIsOn(Setting id) const;

    SettingsStore &store() const { return store_; }

signals:
    void edited(Setting id);
    void applied();

private:
    using Values = std::array<QString, static_cast<std::size_t>(Setting::Count)>;

    QString &value(Setting id) { return values_[static_cast<std::size_t>(id)]; }
    const QString &value(Setting id) const { return values_[static_cast<std::size_t>(id)]; }
    QString fallback(const SettingRow &row) const;
    QString withFolder(QString text) const;
    QString toStore(const SettingRow &row) const;
    void load(const SettingRow &row, const QString &text);
    void change(Setting id, const QString &text);

    SettingsStore &store_;
    Log &log_;
    QString appFolder_;
    Values values_;
    Values snapshot_;
};
