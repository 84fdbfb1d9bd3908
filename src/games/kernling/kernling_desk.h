// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "games/kernling/kernling_lists.h"
#include "platform/gate.h"

#include <QString>

class KernlingWorkView;
struct Ground;
struct KernlingControls;
struct WordLists;

/// What all parts of the stem game's window stand on.
struct KernlingDesk
{
    KernlingDesk(Ground &house, KernlingControls &window, KernlingWorkView &works, WordLists &words)
        : ground(house)
        , controls(window)
        , view(works)
        , mainLists(words)
    {}

    Ground &ground;
    KernlingControls &controls;
    KernlingWorkView &view;
    KernlingLists lists;
    WordStore List1; ///< words that can be moved into the text
    WordLists &mainLists;
    /// The window is modal and stands on the program's gate like a box. What it does itself passes this gate,
    /// which is shut while anything of its own runs.
    Gate doors;

    /// A notice with the game's sign.
    void tell(const QString &text) const;
    /// The frame round the text says what is in it; an empty title says nothing.
    void showTitle(const QString &title) const;
    /// Fills `wortellist` with the stem list of the main window; empty if the file is missing.
    void Init();
    /// The same from `path` (stored form).
    void Init2(const QString &path);
};
