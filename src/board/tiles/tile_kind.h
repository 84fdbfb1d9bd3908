// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/box_kinds.h"
#include "platform/colours.h"

#include <QString>

#include <array>

/// One row a kind of tile. A tile has no kind field: its back colour is its kind, compared as an exact value.
/// `filterIndex` is the index of the kind's `OptType` button, which is at once its filter and its counter.
struct TileKind
{
    Colour back;
    Colour text;
    const char16_t *name;        ///< "Wortel", "Präfix", "Suffix": of one tile, or of its list
    const char16_t *plural;      ///< "Wortele", "Präfixe", "Suffixe": what is told
    const char16_t *sessionWord; ///< "Prefix", "Wortel", "Suffix": session files
    char backupLetter;           ///< 'P', 'M', 'S': the backup file
    int filterIndex;
    BoxStyle box; ///< colours of its boxes
};

inline constexpr std::array<TileKind, 3> tileKinds{{
    {colours::wortelBack, colours::wortelText, u"Wortel", u"Wortele", u"Wortel", 'M', 0, BoxStyle::Wortel},
    {colours::prefixBack, colours::prefixText, u"Präfix", u"Präfixe", u"Prefix", 'P', 1, BoxStyle::Prefix},
    {colours::suffixBack, colours::suffixText, u"Suffix", u"Suffixe", u"Suffix", 'S', 2, BoxStyle::Suffix},
}};

/// The kind of a back colour, or nullptr for a colour that no kind has.
constexpr const TileKind *kindOfColour(Colour back)
{
    for (const TileKind &kind : tileKinds)
        if (kind.back == back)
            return &kind;
    return nullptr;
}

/// The kind whose filter and counter has that index, 0 to 2.
constexpr const TileKind &kindAt(int filterIndex)
{
    return tileKinds.at(static_cast<std::size_t>(filterIndex));
}

inline constexpr const TileKind &wortelKind = tileKinds[0];
inline constexpr const TileKind &prefixKind = tileKinds[1];
inline constexpr const TileKind &suffixKind = tileKinds[2];

/// The kind of the word that session files have for it, case ignored, or nullptr.
const TileKind *kindOfWord(const QString &sessionWord);
