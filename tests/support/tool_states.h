// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "dialogs/report_window.h"
#include "support/test_house.h"

/// How every control of the window stands, one a line and sorted, but for reports, for the words in lists and
/// fields, and for the counters of the board's tiles.
inline QStringList toolStates(const TestHouse &house)
{
    QStringList states;
    for (const QWidget *widget : house.form.findChildren<QWidget *>()) {
        const QString name = widget->objectName();
        bool inReport = false;
        for (const QWidget *above = widget; above != nullptr; above = above->parentWidget())
            inReport = inReport || qobject_cast<const ReportWindow *>(above) != nullptr;
        if (widget->window() != &house.form || inReport || name.isEmpty() || name.startsWith(u"qt_") ||
            name.startsWith(u"OptType") || name == u"ShortNote")
            continue;
        // Only what a tool is itself, not what the panel is that it stands on.
        const bool enabled = widget->isEnabledTo(widget->parentWidget());
        QString state = QStringLiteral("%1 %2 %3 %4")
                            .arg(name, QLatin1String(widget->isHidden() ? "hidden" : "shown"),
                                 QLatin1String(enabled ? "enabled" : "disabled"), widget->toolTip());
        if (const auto *button = qobject_cast<const PressButton *>(widget))
            state += u' ' + button->faceColour().name() + u' ' + button->text();
        states << state;
    }
    states << QStringLiteral("strip runs %1, hourglass %2, bar %3")
                  .arg(house.controls.Scroller->isTimerOn())
                  .arg(QGuiApplication::overrideCursor() != nullptr)
                  .arg(house.controls.GameProgress->Caption());
    states.sort(); // what is raised changes its place among its neighbours
    return states;
}

/// The first line in which the two differ, or nothing.
inline QString firstDifference(const QStringList &before, const QStringList &after)
{
    for (const QString &state : after)
        if (!before.contains(state))
            return state;
    return before.size() == after.size() ? QString() : QStringLiteral("a control came or went");
}
