// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/undo_ring.h"

#include "board/canvas/canvas.h"
#include "board/hand/menu_model.h"
#include "platform/clock.h"
#include "platform/ground.h"
#include "platform/modes.h"
#include "platform/options.h"
#include "platform/procedure.h"
#include "widgets/guards.h"

namespace {
constexpr auto form = "frmMain";
}

UndoRing::UndoRing(Ground &ground, Modes &modes, MenuModel &menus, Canvas &canvas, QObject *parent)
    : QObject(parent)
    , ground_(ground)
    , modes_(modes)
    , menus_(menus)
    , canvas_(canvas)
{}

bool UndoRing::isOn() const { return ground_.options.storedIsOn(Setting::UseUndo); }

void UndoRing::SetCollBuffer()
{
    if (!isOn())
        return;
    Procedure step{ground_.log, "SetCollBuffer", form};
    const Hourglass hourglass;
    step([&] { ring_.push(copyOf(canvas_.store().tiles())); });
    modes_.CanUndo = true;
    modes_.CanRedo = false;
    step([&] { menus_.CreateMenus(); });
}

void UndoRing::ClearCollBuffer()
{
    if (!isOn())
        return;
    Procedure step{ground_.log, "ClearCollBuffer", form};
    step([&] { ring_.restart(copyOf(canvas_.store().tiles())); });
    modes_.CanUndo = false;
    modes_.CanRedo = false;
}

void UndoRing::UndoAction()
{
    if (!isOn())
        return;
    Procedure step{ground_.log, "UndoAction", form};
    const Hourglass hourglass;
    step([&] { putBack(ring_.stepBack()); });
    modes_.CanUndo = modes_.CanUndo && !ring_.atOldest();
    modes_.CanRedo = true;
    step([&] { menus_.CreateMenus(); });
}

void UndoRing::RedoAction()
{
    if (!isOn())
        return;
    Procedure step{ground_.log, "RedoAction", form};
    const Hourglass hourglass;
    step([&] { putBack(ring_.stepForward()); });
    modes_.CanUndo = true;
    modes_.CanRedo = modes_.CanRedo && !ring_.atNewest();
    step([&] { menus_.CreateMenus(); });
}

void UndoRing::putBack(const Snapshot &state)
{
    Procedure step{ground_.log, "putBack", form, Procedure::Silent};
    TileStore &store = canvas_.store();
    const FrozenBoard frozen(canvas_.surface());
    step([&] { store.takeAll(); });
    step([&] {
        const CanvasSurface::Batch batch(canvas_.surface());
        for (const TileCopy &copy : state) {
            auto tile = std::make_unique<cWortel>();
            tile->txt = copy.text;
            tile->BGColor = copy.back;
            tile->TxtColor = copy.textColour;
            tile->setXLeft(copy.left);
            tile->setYTop(copy.top);
            store.redrawAndAppend(std::move(tile));
        }
    });
    // The captions are true before anything can look at them in the yields of the redraw.
    for (const TileKind &kind : tileKinds)
        step([&] { store.counters().set(kind.filterIndex, store.countOf(kind.back)); });
    step([&] { ground_.pump.yield(); });
    step([&] { canvas_.CanvasRedrawAll(); });
}
