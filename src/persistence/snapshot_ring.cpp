// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/snapshot_ring.h"

Snapshot copyOf(const TileList &tiles)
{
    Snapshot copies;
    copies.reserve(tiles.size());
    for (const auto &tile : tiles)
        copies.push_back(
            {tile->xLeft(), tile->yTop(), tile->Extent(), tile->txt, tile->BGColor, tile->TxtColor});
    return copies;
}

TileList tilesOf(const Snapshot &state, const TileStore &store)
{
    TileList tiles;
    tiles.reserve(state.size());
    for (const TileCopy &copy : state) {
        auto tile = std::make_unique<cWortel>();
        tile->txt = copy.text;
        tile->BGColor = copy.back;
        tile->TxtColor = copy.textColour;
        tile->setXLeft(copy.left);
        tile->setYTop(copy.top);
        tile->setExtent(store.extentOf(copy.text));
        tiles.push_back(std::move(tile));
    }
    return tiles;
}

void SnapshotRing::push(Snapshot state)
{
    BufferPos_ = next(BufferPos_);
    slot() = std::move(state);
    BufferNewest_ = BufferPos_;
    if (BufferOldest_ == BufferNewest_)
        BufferOldest_ = next(BufferOldest_);
}

void SnapshotRing::restart(Snapshot state)
{
    CollBuffer_ = {};
    BufferPos_ = BufferOldest_ = BufferNewest_ = 0;
    slot() = std::move(state);
}

const Snapshot &SnapshotRing::stepBack()
{
    BufferPos_ = previous(BufferPos_);
    return slot();
}

const Snapshot &SnapshotRing::stepForward()
{
    BufferPos_ = next(BufferPos_);
    return slot();
}
