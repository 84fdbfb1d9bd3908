// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/work.h"

#include <vector>

class QWidget;
struct KernlingControls;

/// How a work shows itself on the window of the stem game: hourglass, `FillProgress`, the cancel "X", resting
/// tools. The text can be looked at, and not be changed, while a work reads it.
class KernlingWorkView : public WorkView
{
public:
    explicit KernlingWorkView(KernlingControls &controls);

    void begin(const WorkPlan &plan) override;
    void tell(const QString &caption) override;
    void offerCancel() override;
    void end() override;
    /// The bar, 0 to the plan's maximum.
    void setValue(int value);

private:
    KernlingControls &controls_;
    std::vector<QWidget *> resting_;
    bool textWasLocked_ = false;
};
