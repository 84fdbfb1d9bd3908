// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QString>

#include <cstdint>
#include <optional>
#include <span>
#include <type_traits>
#include <vector>

class QWidget;
struct MainControls;

/// Why a tool rests, is hidden or shown.
enum class Reason : std::uint8_t {
    WholeList,  ///< "Alle" is checked: no number is needed
    Dictionary, ///< the dictionary is open
    Report,     ///< a report stands over the board
    Preparing,  ///< words for it are searched on the board
    Retype,     ///< retype mode, from its preparing on
    Typing,     ///< the strip runs
    Game,       ///< the word game, from its start to its end
    Building,   ///< its time to build words on the board: none is entered yet
    Work,
};

/// What a reason does to one control.
struct SheetRow
{
    enum Mark : unsigned {
        None = 0,
        Disabled = 1,
        Hidden = 2,
        Shown = 4,   ///< for a control that is hidden otherwise
        Resting = 8, ///< looks as ever but does not act: greyed for a moment it would only flicker
    };

    QWidget *(*control)(const MainControls &);
    unsigned marks;
    const char16_t *toolTip = nullptr; ///< nullptr leaves the control's own
};

/// The control of a row, said by its name: `tool<&C::Check3>`, and of several with one name
/// `tool<&C::Option2, 1>`, with `C` for `MainControls`.
template <auto Member, std::size_t Index = 0> QWidget *tool(const MainControls &controls)
{
    if constexpr (std::is_pointer_v<std::remove_cvref_t<decltype(controls.*Member)>>)
        return controls.*Member;
    else
        return (controls.*Member)[Index];
}

/// The only one that enables, disables, hides or shows a tool of the main window. Each mode, work, report or
/// open list lays its sheet under its own reason and takes it off again, in any order: a tool acts when no
/// reason lies on it, and then looks as it was made.
class ControlSheet
{
public:
    explicit ControlSheet(const MainControls &controls)
        : controls_(controls)
    {}

    /// Laid twice under one reason, both lie there and are taken off together.
    void lay(Reason reason, std::span<const SheetRow> rows);
    void takeOff(Reason reason);
    void set(Reason reason, std::span<const SheetRow> rows, bool on);
    /// Whether a press on the tool does something.
    bool acts(const QWidget *control) const { return !restsFor(control); }
    /// Why a press on the tool does nothing; of several reasons the last of the list above.
    std::optional<Reason> restsFor(const QWidget *control) const;
    /// What the tool says while no sheet says something else.
    void setToolTip(QWidget *control, const QString &text);

private:
    struct Laid
    {
        Reason reason;
        SheetRow row;
        QWidget *control;
    };
    /// What a control is without the sheets that lie on it.
    struct Own
    {
        bool shown;
        std::optional<QString> toolTip; ///< while a sheet says something else
    };

    void apply(QWidget *control);

    const MainControls &controls_;
    std::vector<Laid> laid_;
    QHash<QWidget *, Own> own_;
};
