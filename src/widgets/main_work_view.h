// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/work.h"

class ControlSheet;
class StatusLine;

/// How a work shows itself on the main window: hourglass, status line, the cancel "X", resting tools. The one
/// list of the tools that rest stands here.
class MainWorkView : public WorkView
{
public:
    MainWorkView(ControlSheet &sheet, StatusLine &status);

    void begin(const WorkPlan &plan) override;
    void tell(const QString &caption) override;
    void offerCancel() override;
    void end() override;

private:
    ControlSheet &sheet_;
    StatusLine &status_;
};
