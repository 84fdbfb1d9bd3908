// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/options.h"

#include "platform/procedure.h"
#include "platform/program_size.h"
#include "platform/runtime_error.h"
#include "platform/settings_store.h"
#include "platform/text.h"
#include "platform/text_masks.h"

#include <QMap>

using namespace Qt::StringLiterals;

namespace {

const QString on = u"True"_s;
const QString off = u"False"_s;
const QString folderMark = u"%APP%"_s; ///< stands for AppFolder

constexpr int invalidPropertyValue = 380;

/// "True" and "False" in any case; else a number, of which 0 is False. Throws RuntimeError 13 for other
/// texts.
bool toBoolean(const QString &text)
{
    const QString trimmed = Trim(text);
    if (equalsIgnoreCase(trimmed, on))
        return true;
    if (equalsIgnoreCase(trimmed, off))
        return false;
    return CDbl(trimmed) != 0;
}

QString masked(SettingType type, const QString &text)
{
    switch (type) {
    case SettingType::Integer:
        return Integer_Pos(text);
    case SettingType::SignedInteger:
        return Integer_All(text);
    case SettingType::Size:
        return program_size::storedText(program_size::wishOf(text));
    default:
        return text;
    }
}

/// Calls `action` for each row that `window` edits, in the order of the table.
template <typename Action> void forRowsOf(SettingsWindow window, const Action &action)
{
    for (const SettingRow &row : settingsTable())
        if (row.window == window)
            action(row);
}

} // namespace

Options::Options(SettingsStore &store, const QString &appFolder, Log &log)
    : store_(store)
    , log_(log)
    , appFolder_(appFolder)
{
    for (const SettingRow &row : settingsTable())
        value(row.id) = fallback(row);
    snapshot_ = values_;
}

QString Options::text(Setting id) const { return value(id); }

int Options::box(Setting id) const { return value(id).toInt(); }

bool Options::isOn(Setting id) const
{
    return value(id) == (settingRow(id).type == SettingType::Option ? on : u"1"_s);
}

double Options::number(Setting id) const { return Val(value(id)); }

void Options::setText(Setting id, const QString &text) { change(id, masked(settingRow(id).type, text)); }

void Options::setBox(Setting id, int boxValue)
{
    if (boxValue < 0 || boxValue > 2)
        throw RuntimeError(invalidPropertyValue, u"Invalid property value"_s);
    change(id, QString::number(boxValue));
}

void Options::setOption(Setting id)
{
    const OptionGroup *group = optionGroup(id);
    if (!group)
        throw RuntimeError::of(RuntimeError::InvalidCall);
    for (const SettingRow &row : settingsTable())
        if (row.id >= group->first && row.id <= group->last && row.id != id)
            change(row.id, off);
    change(id, on);
}

void Options::keepOption(Setting id)
{
    setOption(id);
    const OptionGroup *group = optionGroup(id);
    for (const SettingRow &row : settingsTable())
        if (row.id >= group->first && row.id <= group->last)
            store_.SaveSetting(QLatin1String(row.section), QLatin1String(row.key), value(row.id));
}

void Options::reset(Setting id)
{
    const SettingRow &row = settingRow(id);
    change(id, fallback(row));
    store_.SaveSetting(QLatin1String(row.section), QLatin1String(row.key), toStore(row));
}

void Options::keepText(Setting id, const QString &text)
{
    setText(id, text);
    const SettingRow &row = settingRow(id);
    store_.SaveSetting(QLatin1String(row.section), QLatin1String(row.key), value(id));
}

void Options::GetSettings(SettingsWindow window)
{
    Procedure step{log_, "GetSettings", "frmOptions"};
    forRowsOf(window, [&](const SettingRow &row) { step([&] { load(row, stored(row.id)); }); });
}

void Options::subSnapShot(SettingsWindow window)
{
    forRowsOf(window,
              [this](const SettingRow &row) { snapshot_[static_cast<std::size_t>(row.id)] = value(row.id); });
}

bool Options::IsChanged(SettingsWindow window) const
{
    bool changed = false;
    forRowsOf(window, [&](const SettingRow &row) {
        changed = changed || snapshot_[static_cast<std::size_t>(row.id)] != value(row.id);
    });
    return changed;
}

void Options::load(const SettingRow &row, const QString &text)
{
    switch (row.type) {
    case SettingType::Box:
        setBox(row.id, CInt(CDbl(text)));
        break;
    case SettingType::Option:
        if (toBoolean(text))
            setOption(row.id);
        else
            change(row.id, off);
        break;
    default:
        setText(row.id, text);
    }
}

bool Options::ApplySettings(SettingsWindow window)
{
    Procedure step{log_, "ApplySettings", "frmOptions"};
    step([&] { FillBlankFields(window); });
    const bool saved = step([&] {
        QMap<QString, QList<QPair<QString, QString>>> sections;
        forRowsOf(window, [&](const SettingRow &row) {
            sections[QLatin1String(row.section)].append({QLatin1String(row.key), toStore(row)});
        });
        for (auto section = sections.cbegin(); section != sections.cend(); ++section)
            store_.SaveSettings(section.key(), section.value());
    });
    if (window == SettingsWindow::frmOptions)
        step([&] { emit applied(); });
    return saved;
}

void Options::FillBlankFields(SettingsWindow window)
{
    forRowsOf(window, [this](const SettingRow &row) {
        if (row.repair && Trim(value(row.id)).isEmpty())
            change(row.id, withFolder(QString::fromUtf16(row.repair)));
    });
}

QString Options::stored(Setting id) const
{
    const SettingRow &row = settingRow(id);
    const QString text = store_.GetSetting(QLatin1String(row.section), QLatin1String(row.key),
                                           QString::fromUtf16(row.fallback));
    return row.type == SettingType::Path ? withFolder(text) : text;
}

bool Options::storedIsOn(Setting id) const
{
    bool result = toBoolean(fallback(settingRow(id)));
    Procedure step{log_, "GetSetting", "frmOptions", Procedure::Silent};
    step([&] { result = toBoolean(stored(id)); });
    return result;
}

QString Options::fallback(const SettingRow &row) const
{
    return withFolder(QString::fromUtf16(row.fallback));
}

QString Options::withFolder(QString text) const
{
    return text.startsWith(folderMark) ? text.replace(0, folderMark.size(), appFolder_) : text;
}

QString Options::toStore(const SettingRow &row) const
{
    QString text = value(row.id);
    if (row.type == SettingType::Path && text.startsWith(appFolder_))
        text.replace(0, appFolder_.size(), folderMark);
    return text;
}

void Options::change(Setting id, const QString &text)
{
    if (value(id) == text)
        return;
    value(id) = text;
    emit edited(id);
}
