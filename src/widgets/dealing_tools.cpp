// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/dealing_tools.h"

#include "widgets/main_controls.h"
#include "widgets/press_button.h"

#include <QLineEdit>

DealingToolsRest::DealingToolsRest(const MainControls &controls)
    : controls_(controls)
{
    controls_.Check2->setEnabled(false);
    controls_.Check1->setEnabled(false);
    controls_.Text1->setEnabled(false);
}

DealingToolsRest::~DealingToolsRest()
{
    controls_.Check2->setEnabled(true);
    controls_.Check1->setEnabled(true);
    controls_.Text1->setDisabled(controls_.Check1->isChecked()); // "Alle" needs no number
}
