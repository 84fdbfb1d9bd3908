// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/int16.h"

class Canvas;
class ListLoader;
class Placement;
class Procedure;
struct AffixHomes;
struct Ground;
struct MainControls;
struct TileKind;
struct WordLists;

/// Fills the first board: the word lists, the Wortel tiles, the two affix rows. A second run reloads nothing
/// and adds no affix rows.
class ProgInit
{
public:
    ProgInit(Ground &ground, const MainControls &controls, WordLists &lists, ListLoader &loader,
             Canvas &canvas, Placement &placement, AffixHomes &homes);

    /// `count` Wortel tiles on a screen of that resolution code. False if a word file is missing: the user
    /// has been told, and the program has to end.
    bool run(Int16 count, int screenCode);

private:
    void nameTheList();
    void layWortelTiles(int count);
    bool fillsAffixes() const;
    void layAffixRows(Procedure &step, int screenCode);
    void layAffixRow(const TileKind &kind, int top, int (*stepAfter)(int), int copies);

    Ground &ground_;
    const MainControls &controls_;
    WordLists &lists_;
    ListLoader &loader_;
    Canvas &canvas_;
    Placement &placement_;
    AffixHomes &homes_;
    bool affixRowsLaid_ = false;
};
