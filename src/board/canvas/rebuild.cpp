// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/canvas/rebuild.h"

#include "board/canvas/canvas.h"
#include "platform/clock.h"
#include "platform/gate.h"
#include "platform/ground.h"
#include "platform/procedure.h"
#include "widgets/guards.h"

void rebuildBoard(Ground &ground, Canvas &canvas, Procedure &step,
                  const std::function<void(TilePointer &, TileList &)> &each)
{
    const Hourglass hourglass;
    TileStore &store = canvas.store();
    const int filter = store.filter().selected();
    {
        const FrozenBoard frozen(canvas.surface());
        TileList rebuilt;
        for (TilePointer &tile : store.copies()) {
            step([&] { each(tile, rebuilt); });
            if (!tile)
                continue;
            tile->setExtent(store.extentOf(tile->txt));
            rebuilt.push_back(std::move(tile));
        }
        if (!ground.gate.isClosing())
            store.replaceAll(std::move(rebuilt));
        step([&] { ground.pump.yield(); });
        step([&] { canvas.CanvasRedrawAll(); });
    }
    step([&] { canvas.RecallFilter(filter); });
}
