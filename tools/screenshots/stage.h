// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/rnd.h"
#include "platform/settings_store.h"

#include <QHash>
#include <QRect>
#include <QString>

#include <functional>
#include <memory>

class QWidget;
class frmMain;

/// Settings for one run.
class RunSettings : public SettingsStore
{
public:
    QString GetSetting(const QString &section, const QString &key, const QString &fallback) const override
    {
        return values_.value(section + u'/' + key, fallback);
    }
    void SaveSetting(const QString &section, const QString &key, const QString &value) override
    {
        values_[section + u'/' + key] = value;
    }

private:
    QHash<QString, QString> values_;
};

/// The program on a stage: the real main window with real rooms, boxes and data, but settings in memory, no
/// sound, and a fixed seed, so that the same pictures come out of each run.
class Stage
{
public:
    /// `data` is the folder of the language data, `folder` where the pictures go.
    Stage(const QString &data, const QString &folder);
    ~Stage();

    void set(const QString &key, const QString &value)
    {
        store_.SaveSetting(QStringLiteral("Settings"), key, value);
    }
    /// Opens the main window. `size` in pixels, maximised without one.
    void open(const QSize &size = {});
    void close();
    frmMain &form();
    /// A place for files that a scene needs.
    const QString &folder() const { return folder_; }

    /// Lets the program run for a while.
    static void play(int milliseconds);
    /// Calls `act` while a menu or a window is open that `opening` opens and waits for.
    static void during(const std::function<void()> &opening, const std::function<void()> &act);

    /// Stores what the screen shows of `area` (of the screen) as a picture that is `width` pixels wide; 0: as
    /// wide as the area.
    void keep(const QString &name, const QRect &area, int width = 0) const;
    void keep(const QString &name, const QWidget &widget, int width = 0) const;

private:
    struct Run;

    QString data_;
    QString folder_;
    Rnd rnd_;
    RunSettings store_;
    std::unique_ptr<Run> run_;
};

/// The place of a widget on the screen.
QRect placeOf(const QWidget &widget);
