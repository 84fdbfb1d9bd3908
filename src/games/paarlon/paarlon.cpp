// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/paarlon/paarlon.h"

#include "board/hand/command_router.h"
#include "games/paarlon/frm_memory.h"

Paarlon::Paarlon(Ground &ground, const WordLists &lists, QWidget *owner)
    : ground_(ground)
    , lists_(lists)
    , owner_(owner)
    , best_(ground)
{}

Paarlon::~Paarlon() = default;

void Paarlon::registerCommands(CommandRouter &router)
{
    for (const MemoryKind &kind : memoryKinds) {
        router.onMenu(kind.startId, [this, &kind] { Display(kind); });
        router.onMenu(kind.showId, [this, &kind] { best_.ShowBestTimes({}, kind); });
        router.onMenu(kind.resetId, [this, &kind] { best_.ResetMemoryMaster(&kind); });
    }
}

void Paarlon::Display(const MemoryKind &kind)
{
    if (window_ && !window_->isVisible())
        window_->Form_Unload(); // closed a moment ago
    if (!window_) {
        window_ = std::make_unique<frmMemory>(ground_, lists_, best_, owner_);
        connect(window_.get(), &frmMemory::unloaded, this, &Paarlon::drop);
    }
    window_->Display(kind);
    emit displayed();
}

void Paarlon::drop()
{
    window_.release()->deleteLater();
    emit closed();
}
