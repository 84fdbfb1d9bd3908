// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "games/paarlon/memory_scores.h"

struct Ground;

/// The lists of the best of the three games, as they are shown, reset, and taken further at the end of a
/// game.
class BestLists
{
public:
    explicit BestLists(Ground &ground);

    MemoryScores &scores() { return scores_; }

    /// Puts `clicks` into the list of `kind` if it beats the tenth place, asks for the name and shows the
    /// list with `message`. The list is stored, sorted, in any case.
    void GetBestTimes(const MemoryKind &kind, int clicks, const QString &message);
    /// `place` is that of a new entry, 1 the first; 0 if there is none.
    void ShowBestTimes(const QString &message, const MemoryKind &kind, int place = 0);
    /// Asks and resets the list of `kind`; nullptr: of all kinds.
    void ResetMemoryMaster(const MemoryKind *kind);

private:
    Ground &ground_;
    MemoryScores scores_;
};
