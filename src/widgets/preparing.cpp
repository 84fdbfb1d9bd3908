// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/preparing.h"

#include "widgets/click_label.h"
#include "widgets/dropper.h"
#include "widgets/main_controls.h"
#include "widgets/press_button.h"

#include <QLineEdit>

namespace {

using C = MainControls;
using Control = QWidget *(*)(const C &);

constexpr Control restingControls[] = {
    [](const C &c) -> QWidget * { return c.Check1; },
    [](const C &c) -> QWidget * { return c.Check2; },
    [](const C &c) -> QWidget * { return c.Label3; },
    [](const C &c) -> QWidget * { return c.Text1; },
    [](const C &c) -> QWidget * { return c.Command2; },
    [](const C &c) -> QWidget * { return c.Command3; },
    [](const C &c) -> QWidget * { return c.Command4; },
    [](const C &c) -> QWidget * { return c.Command5; },
    [](const C &c) -> QWidget * { return c.Label2; },
    [](const C &c) -> QWidget * { return c.Command6; },
    [](const C &c) -> QWidget * { return c.Dropper1; },
    [](const C &c) -> QWidget * { return c.Option1[0]; },
    [](const C &c) -> QWidget * { return c.Option1[1]; },
};

} // namespace

void ToggleButtonsOnPreparing(const MainControls &controls, bool enable)
{
    for (const Control &control : restingControls)
        control(controls)->setEnabled(enable);
    if (controls.Check1->isChecked())
        controls.Text1->setEnabled(false); // "Alle" needs no number
}
