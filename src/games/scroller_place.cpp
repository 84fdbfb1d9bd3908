// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/scroller_place.h"

#include "platform/options.h"
#include "platform/rnd.h"

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

QPoint middleOfFreeSpace(const BoardRoom &room, QSize size)
{
    const int bandHeight = room.window.height() - room.bandTop;
    return {room.window.width() / 2 - size.width() / 2,
            room.window.height() / 2 - size.height() / 2 - bandHeight};
}

} // namespace

QPoint scrollerPlace(const Options &options, Rnd &rnd, const BoardRoom &room, QSize size)
{
    if (options.isOn(Setting::ScrollerRndPos))
        return anywhere(rnd, room.window, size);
    if (options.isOn(Setting::ScrollerLeftDownPos))
        return {room.listLeft, room.bandTop - size.height()};
    if (options.isOn(Setting::ScrollerMiddlePos))
        return middleOfFreeSpace(room, size);
    return {0, 0};
}
