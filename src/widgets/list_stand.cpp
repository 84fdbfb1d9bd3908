// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/list_stand.h"

#include "widgets/gradient.h"
#include "widgets/main_controls.h"
#include "widgets/store_list.h"

#include <algorithm>

void standOnBand(const MainControls &controls, StoreList *list)
{
    const QRect band = controls.Picture1->geometry();
    const QRect words = controls.Picture4->geometry().translated(band.topLeft());
    const QRect games = controls.Picture3->geometry().translated(band.topLeft());

    const bool fitsBeside = words.right() + 1 + list->width() <= games.left();
    const int left = fitsBeside ? words.right() + 1 : words.left();
    const int bottom = fitsBeside ? band.bottom() + 1 : band.top();
    list->move(std::max(0, left), std::max(0, bottom - list->height()));
    list->raise();
}

void showDownToBand(const MainControls &controls, StoreList *list)
{
    constexpr int lowest = 60; // pixels
    standOnBand(controls, list);
    list->resize(list->width(), std::max(lowest, controls.Picture1->y() - list->y()));
    list->show();
}
