// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <span>
#include <vector>

class QWidget;
struct MainControls;

/// What a mode does to one control. `Kept` rows are not changed by the sheet, but by the mode's own steps:
/// they too come back when it is taken off.
struct SheetRow
{
    enum Mark : unsigned { Kept = 0, Disabled = 1, Enabled = 2, Hidden = 4, Shown = 8 };

    QWidget *(*control)(const MainControls &);
    unsigned marks;
    const char16_t *toolTip = nullptr; ///< nullptr leaves the control's own
};

/// A sheet that a mode lays over the tools of the main window: some are hidden, some rest. Taken off, each
/// control is again as it was before it was first covered.
class ControlSheet
{
public:
    explicit ControlSheet(const MainControls &controls)
        : controls_(controls)
    {}

    /// May be called several times: the sheets lie on each other and are taken off together.
    void layOn(std::span<const SheetRow> rows);
    void takeOff();
    bool isOn() const { return !covered_.empty(); }

private:
    struct Covered
    {
        QWidget *control;
        bool enabled;
        bool shown;
        QString toolTip;
    };

    void remember(QWidget *control);

    const MainControls &controls_;
    std::vector<Covered> covered_;
};
