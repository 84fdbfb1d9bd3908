// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/status_line.h"

#include "widgets/progress_bar.h"

#include <algorithm>

void StatusLine::show(Layer layer, int maximum, const QString &caption)
{
    line(layer) = {std::max(1, maximum), 0, caption};
    apply();
}

void StatusLine::setCaption(Layer layer, const QString &caption)
{
    if (auto &shown = line(layer)) {
        shown->caption = caption;
        apply();
    }
}

void StatusLine::setValue(Layer layer, int value)
{
    if (auto &shown = line(layer)) {
        shown->value = value;
        apply();
    }
}

void StatusLine::hide(Layer layer)
{
    line(layer).reset();
    apply();
}

void StatusLine::apply()
{
    const std::optional<Line> &top = line(Layer::Work) ? line(Layer::Work) : line(Layer::Mode);
    if (!top) {
        bar_->resetAndHide();
        return;
    }
    bar_->setMaximum(top->maximum);
    bar_->setValue(top->value);
    bar_->setCaption(top->caption);
    bar_->show();
}
