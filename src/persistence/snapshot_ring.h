// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "board/tiles/tile_store.h"

#include <array>
#include <vector>

/// A copy of a tile, held by a snapshot.
struct TileCopy
{
    int left = 0;
    int top = 0;
    int extent = 0;
    QString text;
    Colour back = 0;
    Colour textColour = 0;

    bool operator==(const TileCopy &) const = default;
};

/// The board as it stood after a change.
using Snapshot = std::vector<TileCopy>;

Snapshot copyOf(const TileList &tiles);
/// The tiles of a snapshot, as wide as `store` makes them.
TileList tilesOf(const Snapshot &state, const TileStore &store);

/// The ring of six snapshots between which undo and redo move: five earlier states and the present one. It
/// knows slots, not boards. It does not guard its ends; a stray step moves round the ring.
class SnapshotRing
{
public:
    static constexpr int size = 6;

    /// A new state behind the present one. What could be redone is dropped; the oldest state goes when the
    /// ring is full.
    void push(Snapshot state);
    /// Forgets everything but the present state.
    void restart(Snapshot state);
    /// The present state has changed without a step.
    void refresh(Snapshot state) { slot() = std::move(state); }
    const Snapshot &stepBack();
    const Snapshot &stepForward();

    bool atOldest() const { return BufferPos_ == BufferOldest_; }
    bool atNewest() const { return BufferPos_ == BufferNewest_; }

private:
    static constexpr int next(int slot) { return slot < size - 1 ? slot + 1 : 0; }
    static constexpr int previous(int slot) { return slot > 0 ? slot - 1 : size - 1; }
    Snapshot &slot() { return CollBuffer_[static_cast<std::size_t>(BufferPos_)]; }

    std::array<Snapshot, size> CollBuffer_;
    int BufferPos_ = 0;
    int BufferOldest_ = 0;
    int BufferNewest_ = 0;
};
