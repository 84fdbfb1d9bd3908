// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/control_sheet.h"

#include <QWidget>

#include <algorithm>

void ControlSheet::lay(Reason reason, std::span<const SheetRow> rows)
{
    for (const SheetRow &row : rows) {
        QWidget *control = row.control(controls_);
        if (!own_.contains(control))
            own_.insert(control, {!control->isHidden(), {}});
        laid_.push_back({reason, row, control});
        apply(control);
    }
}

void ControlSheet::takeOff(Reason reason)
{
    std::vector<QWidget *> freed;
    for (const Laid &laid : laid_)
        if (laid.reason == reason)
            freed.push_back(laid.control);
    std::erase_if(laid_, [reason](const Laid &laid) { return laid.reason == reason; });
    for (QWidget *control : freed)
        apply(control);
}

void ControlSheet::set(Reason reason, std::span<const SheetRow> rows, bool on)
{
    takeOff(reason);
    if (on)
        lay(reason, rows);
}

std::optional<Reason> ControlSheet::restsFor(const QWidget *control) const
{
    constexpr unsigned restsBy = SheetRow::Disabled | SheetRow::Hidden | SheetRow::Resting;
    std::optional<Reason> found;
    for (const Laid &laid : laid_)
        if (laid.control == control && (laid.row.marks & restsBy) != 0 && found < laid.reason)
            found = laid.reason;
    return found;
}

void ControlSheet::setToolTip(QWidget *control, const QString &text)
{
    const auto own = own_.find(control);
    if (own != own_.end() && own->toolTip)
        own->toolTip = text;
    else
        control->setToolTip(text);
}

void ControlSheet::apply(QWidget *control)
{
    const auto own = own_.find(control);
    if (own == own_.end())
        return; // freed already
    unsigned marks = SheetRow::None;
    const char16_t *toolTip = nullptr;
    bool lies = false;
    for (const Laid &laid : laid_) {
        if (laid.control != control)
            continue;
        lies = true;
        marks |= laid.row.marks;
        if (laid.row.toolTip != nullptr)
            toolTip = laid.row.toolTip;
    }
    const bool shown = own->shown || (marks & SheetRow::Shown) != 0;
    control->setEnabled((marks & SheetRow::Disabled) == 0);
    control->setVisible(shown && (marks & SheetRow::Hidden) == 0);
    if (toolTip != nullptr) {
        if (!own->toolTip)
            own->toolTip = control->toolTip();
        control->setToolTip(QString::fromUtf16(toolTip));
    } else if (own->toolTip) {
        control->setToolTip(*own->toolTip);
        own->toolTip.reset();
    }
    if (!lies)
        own_.erase(own);
}
