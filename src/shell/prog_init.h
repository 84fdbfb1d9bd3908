// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/int16.h"

#include <vector>

class BulkTiles;
class Canvas;
class ListLoader;
class WordStore;
struct AffixHome;
struct AffixHomes;
struct Ground;
struct MainControls;
struct WordLists;

/// Fills the first board: the word lists, the Wortel tiles, the two affix rows. A second run reloads nothing
/// and adds no affix rows.
class ProgInit
{
public:
    ProgInit(Ground &ground, const MainControls &controls, WordLists &lists, ListLoader &loader,
             Canvas &canvas, BulkTiles &bulk, AffixHomes &homes);

    /// `count` Wortel tiles on a screen of that resolution code. False if a word file is missing: the user
    /// has been told, and the program has to end.
    bool run(Int16 count, int screenCode);
    /// Wortel tiles of the first board that found no room.
    int leftOut() const { return leftOut_; }

private:
    bool loadLists();
    bool offersUsualList(const QString &missing);
    void nameTheList();
    void findHomes(int screenCode);
    static void findRow(std::vector<AffixHome> &homes, const WordStore &affixes, int top,
                        int (*stepAfter)(int));
    int expectedBandTop() const;

    Ground &ground_;
    const MainControls &controls_;
    WordLists &lists_;
    ListLoader &loader_;
    Canvas &canvas_;
    BulkTiles &bulk_;
    AffixHomes &homes_;
    bool homesFound_ = false;
    int leftOut_ = 0;
};
