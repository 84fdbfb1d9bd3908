// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/word_store.h"

/// The lists of the stem game's window that a marking is judged by, and those that it fills. All finds are
/// whole-item and case-blind.
struct KernlingLists
{
    KernlingLists();

    WordStore wortellist; ///< all stems of the current stem list
    WordStore prefixlist; ///< holds its affixes from the start, as does the next
    WordStore suffixlist;
    WordStore UserFoundWortelList;
    WordStore UserFalseWortelList;

    /// The empty word stands in none.
    bool ChkForDuplicates(const QString &word) const { return holds(wortellist, word); }
    bool ChkForDuplicates2(const QString &word) const { return holds(UserFoundWortelList, word); }
    bool ChkForDuplicates3(const QString &word) const { return holds(prefixlist, word); }
    bool ChkForDuplicates4(const QString &word) const { return holds(suffixlist, word); }

private:
    static bool holds(const WordStore &store, const QString &word)
    {
        return !word.isEmpty() && store.contains(word);
    }
};
