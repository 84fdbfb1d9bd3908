// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/canvas/opt_types.h"

#include "widgets/gradient.h"
#include "widgets/main_controls.h"
#include "widgets/press_button.h"

#include <QButtonGroup>

OptTypes::OptTypes(const MainControls &controls, QObject *parent)
    : QObject(parent)
    , controls_(controls)
{
    auto *group = new QButtonGroup(this);
    for (std::size_t i = 0; i < controls.OptType.size(); ++i) {
        PressButton *button = controls.OptType[i];
        button->setCheckable(true);
        group->addButton(button);
        const int index = static_cast<int>(i);
        connect(button, &PressButton::toggled, this, [this, index](bool on) {
            if (on)
                emit clicked(index);
        });
    }
}

QString OptTypes::caption(int index) const
{
    return controls_.OptType.at(static_cast<std::size_t>(index))->text();
}

void OptTypes::setCaption(int index, const QString &text)
{
    controls_.OptType.at(static_cast<std::size_t>(index))->setText(text);
}

int OptTypes::selected() const
{
    for (std::size_t i = 0; i < controls_.OptType.size(); ++i)
        if (controls_.OptType[i]->isChecked())
            return static_cast<int>(i);
    return TileFilter::all;
}

void OptTypes::select(int index)
{
    if (index >= 0 && index < static_cast<int>(controls_.OptType.size()))
        controls_.OptType[static_cast<std::size_t>(index)]->setChecked(true);
}

FormMeasures::FormMeasures(const MainControls &controls)
    : controls_(controls)
    , metrics_(controls.form->font())
{}

int FormMeasures::textWidth(const QString &text) const
{
    return widths_.get(text, [this](const QString &unknown) { return metrics_.horizontalAdvance(unknown); });
}

int FormMeasures::ScaleWidth() const { return controls_.form->width(); }

int FormMeasures::ScaleHeight() const { return controls_.form->height(); }

int FormMeasures::BandTop() const { return controls_.Picture1->y(); }
