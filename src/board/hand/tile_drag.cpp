// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/hand/tile_drag.h"

#include "widgets/dropper.h"
#include "widgets/floating_tile.h"
#include "widgets/main_controls.h"

TileDrag::TileDrag(const MainControls &controls)
    : controls_(controls)
    , copy_(new FloatingTile(controls.form))
{
    copy_->hide();
}

void TileDrag::begin(const QPoint &pointer)
{
    cancel();
    const FloatingTile &held = *controls_.BtnMove1;
    copy_->setTile(held.Caption(), held.backColour(), held.textColour());
    copy_->setScale(held.scale());
    copy_->resize(held.size());
    grip_ = held.mapFromGlobal(pointer);
    active_ = true;
    moveTo(pointer);
    copy_->raise();
    copy_->show();
}

void TileDrag::moveTo(const QPoint &pointer)
{
    if (!active_)
        return;
    copy_->move(controls_.form->mapFromGlobal(pointer) - grip_);
    highlight(isOverField(pointer));
}

bool TileDrag::end(const QPoint &pointer)
{
    const bool dropped = active_ && isOverField(pointer);
    cancel();
    return dropped;
}

void TileDrag::cancel()
{
    highlight(false);
    active_ = false;
    copy_->hide();
}

bool TileDrag::isOverField(const QPoint &pointer) const
{
    const Dropper &field = *controls_.Dropper1;
    return field.isVisible() && field.isEnabled() && field.rect().contains(field.mapFromGlobal(pointer));
}

void TileDrag::highlight(bool on)
{
    if (on == over_)
        return;
    over_ = on;
    if (on)
        controls_.Dropper1->Highlight();
    else
        controls_.Dropper1->UnHighlight();
}
