// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/colours.h"

#include <QString>

#include <array>

/// One row a kind of tile. A tile has no kind field: its back colour is its kind, compared as an exact value.
/// `filterIndex` is the index of the kind's `OptType` button, which is at once its filter and its counter.
struct TileKind
{
    Colour back;
    Colour text;
    const char16_t *styleWord;   ///< "PREFIX", "WORTEL", "SUFFIX": boxes and lists
    const char16_t *sessionWord; ///< "Prefix", "Wortel", "Suffix": session files
    char backupLetter;           ///< 'P', 'M', 'S': the backup file
    int filterIndex;
    int boxCode; ///< kind code of the input box
};

inline constexpr std::array<TileKind, 3> tileKinds{{
    {colours::wortelBack, colours::wortelText, u"WORTEL", u"Wortel", 'M', 0, 2},
    {colours::prefixBack, colours::prefixText, u"PREFIX", u"Prefix", 'P', 1, 1},
    {colours::suffixBack, colours::suffixText, u"SUFFIX", u"Suffix", 'S', 2, 3},
}};

/// The kind of a back colour, or nullptr for a colour that no kind has.
constexpr const TileKind *kindOfColour(Colour back)
{
    for (const TileKind &kind : tileKinds)
        if (kind.back == back)
            return &kind;
    return nullptr;
}

/// The kind of a style word, compared exactly, or nullptr.
const TileKind *kindOfWord(const QString &styleWord);
