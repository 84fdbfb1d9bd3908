// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/control_sheet.h"

#include <QWidget>

#include <algorithm>

void ControlSheet::remember(QWidget *control)
{
    const auto isIt = [control](const Covered &covered) { return covered.control == control; };
    if (std::any_of(covered_.begin(), covered_.end(), isIt))
        return;
    // The control's own state counts, not what it inherits from a panel.
    covered_.push_back(
        {control, !control->testAttribute(Qt::WA_ForceDisabled), !control->isHidden(), control->toolTip()});
}

void ControlSheet::layOn(std::span<const SheetRow> rows)
{
    for (const SheetRow &row : rows) {
        QWidget *control = row.control(controls_);
        remember(control);
        if ((row.marks & (SheetRow::Disabled | SheetRow::Enabled)) != 0)
            control->setEnabled((row.marks & SheetRow::Enabled) != 0);
        if ((row.marks & (SheetRow::Hidden | SheetRow::Shown)) != 0)
            control->setVisible((row.marks & SheetRow::Shown) != 0);
        if (row.toolTip != nullptr)
            control->setToolTip(QString::fromUtf16(row.toolTip));
    }
}

void ControlSheet::takeOff()
{
    for (const Covered &covered : covered_) {
        covered.control->setEnabled(covered.enabled);
        covered.control->setVisible(covered.shown);
        covered.control->setToolTip(covered.toolTip);
    }
    covered_.clear();
}
