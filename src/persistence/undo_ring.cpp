// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/undo_ring.h"

#include "board/canvas/canvas.h"
#include "board/hand/command_router.h"
#include "board/tiles/board_news.h"
#include "platform/clock.h"
#include "platform/ground.h"
#include "platform/note_texts.h"
#include "platform/notes.h"
#include "platform/options.h"
#include "platform/procedure.h"
#include "widgets/guards.h"

#include <utility>

namespace {
constexpr auto form = "frmMain";
}

UndoRing::UndoRing(Ground &ground, Canvas &canvas, BoardNews &news, QObject *parent)
    : QObject(parent)
    , ground_(ground)
    , canvas_(canvas)
    , news_(news)
{}

void UndoRing::registerCommands(CommandRouter &router)
{
    using command::From;
    const auto undo = [this](const command::Command &, const Press &) {
        CanUndo_ ? UndoAction() : ground_.notes.tell(isOn() ? note::nothingToUndo : note::undoIsOff);
        return Ending::Whole;
    };
    const auto redo = [this](const command::Command &, const Press &) {
        CanRedo_ ? RedoAction() : ground_.notes.tell(isOn() ? note::nothingToRedo : note::undoIsOff);
        return Ending::Whole;
    };
    router.on(From::MainMenu, {2801}, undo);
    router.on(From::MainMenu, {2802}, redo);
    router.on(From::Key, {9, 26}, undo);
    router.on(From::Key, {10, 25}, redo);
}

bool UndoRing::isOn() const { return ground_.options.storedIsOn(Setting::UseUndo); }

void UndoRing::setSteps(bool canUndo, bool canRedo)
{
    CanUndo_ = canUndo;
    CanRedo_ = canRedo;
    emit changed();
}

void UndoRing::takeSteps(const Steps &steps)
{
    wasOn_ = isOn();
    ring_ = steps.ring;
    setSteps(steps.canUndo, steps.canRedo);
}

void UndoRing::SetCollBuffer()
{
    if (!isOn())
        return;
    Procedure step{ground_.log, "SetCollBuffer", form};
    const Hourglass hourglass;
    step([&] { ring_.push(copyOf(canvas_.store().tiles())); });
    setSteps(true, false);
}

void UndoRing::ClearCollBuffer()
{
    wasOn_ = isOn();
    if (!wasOn_)
        return;
    Procedure step{ground_.log, "ClearCollBuffer", form};
    step([&] { ring_.restart(copyOf(canvas_.store().tiles())); });
    setSteps(false, false);
}

void UndoRing::refreshPresent()
{
    if (isOn())
        ring_.refresh(copyOf(canvas_.store().tiles()));
}

void UndoRing::takeSetting()
{
    if (isOn() == wasOn_)
        return;
    if (isOn()) {
        ClearCollBuffer();
        return;
    }
    wasOn_ = false;
    setSteps(false, false);
}

void UndoRing::UndoAction()
{
    if (!isOn())
        return;
    Procedure step{ground_.log, "UndoAction", form};
    const Hourglass hourglass;
    step([&] { putBack(ring_.stepBack()); });
    setSteps(CanUndo_ && !ring_.atOldest(), true);
    step([&] { news_.stepTo(); });
}

void UndoRing::RedoAction()
{
    if (!isOn())
        return;
    Procedure step{ground_.log, "RedoAction", form};
    const Hourglass hourglass;
    step([&] { putBack(ring_.stepForward()); });
    setSteps(true, CanRedo_ && !ring_.atNewest());
    step([&] { news_.stepTo(); });
}

/// The filter stays as it is.
void UndoRing::putBack(const Snapshot &state)
{
    Procedure step{ground_.log, "putBack", form, Procedure::Silent};
    TileStore &store = canvas_.store();
    step([&] { store.replaceAll(tilesOf(state, store)); });
    step([&] { store.recount(); });
    step([&] { canvas_.repaint(); });
    step([&] { ground_.pump.yield(); });
}
