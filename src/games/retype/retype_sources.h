// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/box_kinds.h"
#include "platform/play_state.h"

/// Where the words to copy come from, and what is said about them.
struct RetypeSource
{
    enum Origin { WordList, Board, Nonsense };

    WordSource words;
    Origin origin;             ///< `Board` and `Nonsense` make their words first
    Vowels vowels;             ///< only stems of that vowel list are taken; `None`: all words
    bool properCase;           ///< the strip shows the dictionary's spelling
    bool keepsWords;           ///< `KeptWords` gets them, by the option
    bool returnsWords;         ///< and gives them back at the end
    bool countsWholeList;      ///< the count while preparing: rows of the list, not words of the strip
    const char16_t *preparing; ///< behind the count, while the words are prepared
    const char16_t *before;    ///< before and behind the count, when the strip starts
    const char16_t *ready;
    const char16_t *left;    ///< behind the count of the words that are left
    const char16_t *praised; ///< what was copied
    BoxSign sign;

    /// Words that the player has collected or chosen; the others are made anew for each run.
    constexpr bool isOfPlayer() const { return origin == WordList && vowels == Vowels::None; }
};

// Only the long vowels are kept, of the two vowel modes: required.
inline constexpr RetypeSource retypeSources[] = {
    {WordSource::UserWords, RetypeSource::WordList, Vowels::None, true, true, true, false,
     u" Wörter vorbereitet", u"", u" Wörter zum Abschreiben", u" Wörter übrig zum Abschreiben",
     u"alle Wörter", BoxSign::Smiley},
    {WordSource::ChosenWords, RetypeSource::WordList, Vowels::None, true, true, true, false,
     u" Wörter vorbereitet", u"", u" Wörter zum Abschreiben", u" Wörter übrig zum Abschreiben",
     u"alle Wörter", BoxSign::Smiley},
    {WordSource::BoardWords, RetypeSource::Board, Vowels::None, false, true, true, false,
     u" Wörter vorbereitet", u"", u" Wörter zum Abschreiben", u" Wörter übrig zum Abschreiben",
     u"alle Wörter", BoxSign::Smiley},
    {WordSource::ShortVowels, RetypeSource::WordList, Vowels::Short, false, false, false, false,
     u" Kurzvokale vorbereitet", u"Noch ", u" Wortele mit kurzem Vokal", u" Wortele mit kurzem Vokal",
     u"alle Wortele mit kurzem Vokal", BoxSign::None},
    {WordSource::LongVowels, RetypeSource::WordList, Vowels::Long, false, true, false, true,
     u" Langvokale vorbereitet", u"Noch ", u" Wortele mit langem Vokal", u" Wortele mit langem Vokal",
     u"alle Wortele mit langem Vokal", BoxSign::None},
    {WordSource::PseudoWords, RetypeSource::Nonsense, Vowels::None, false, false, false, false,
     u" Wörter vorbereitet", u"", u" Unsinnswörter zum Abschreiben", u" Wörter übrig zum Abschreiben",
     u"alle Wörter", BoxSign::Smiley},
};

constexpr const RetypeSource &retypeSource(WordSource words)
{
    for (const RetypeSource &source : retypeSources)
        if (source.words == words)
            return source;
    return retypeSources[0];
}
