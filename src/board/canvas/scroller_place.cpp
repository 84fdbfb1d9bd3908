// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/canvas/scroller_place.h"

#include "board/canvas/placement.h"
#include "widgets/list_stand.h"
#include "platform/options.h"
#include "platform/rnd.h"
#include "widgets/gradient.h"
#include "widgets/main_controls.h"
#include "widgets/store_list.h"

namespace {

QPoint anywhere(Rnd &rnd, QSize window, QSize size)
{
    rnd.Randomize();
    int x = rnd.absInt(window.width(), -100);
    int y = rnd.absInt(window.height(), -300) + 80;
    if (x + size.width() > window.width())
        x -= size.width() + 10;
    if (y + size.height() > window.height())
        y -= size.height() + 10;
    return {x, y};
}

} // namespace

void placeOverBoard(const MainControls &controls, const Options &options, Rnd &rnd, QWidget &child)
{
    if (options.isOn(Setting::ScrollerRndPos)) {
        child.move(anywhere(rnd, controls.form->size(), child.size()));
    } else if (options.isOn(Setting::ScrollerLeftDownPos)) {
        standOnBand(controls, controls.CorrectWordList); // where it stands when it is shown
        child.move(controls.CorrectWordList->x(), controls.Picture1->y() - child.height());
    } else if (options.isOn(Setting::ScrollerMiddlePos)) {
        Placement::CenterOnFreeSpace(controls, child);
    } else {
        child.move(0, 0);
    }
}
