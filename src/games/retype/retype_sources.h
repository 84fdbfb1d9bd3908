// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringView>

/// Where the words to copy come from, and what is said about them.
struct RetypeSource
{
    enum Origin { WordList, Board, Nonsense };

    const char16_t *mode;      ///< of `StartTheRetyping`
    const char16_t *kind;      ///< of `FillScroller`
    Origin origin;             ///< `Board` and `Nonsense` make their words first
    const char16_t *vowels;    ///< "KURZ" or "LANG": only stems of that vowel list are taken; else nullptr
    bool properCase;           ///< the strip shows the dictionary's spelling
    bool keepsWords;           ///< `KeptWords` gets them, by the option
    bool countsWholeList;      ///< the count while preparing: rows of the list, not words of the strip
    const char16_t *preparing; ///< behind the count, while the words are prepared
    const char16_t *before;    ///< before and behind the count, when the strip starts
    const char16_t *ready;
    const char16_t *left;    ///< behind the count of the words that are left
    const char16_t *praised; ///< what was copied
    const char16_t *boxStyle;
};

// Only the long vowels are kept, of the two vowel modes: required.
inline constexpr RetypeSource retypeSources[] = {
    {u"USERWORDS", u"CORRECT_WORDS", RetypeSource::WordList, nullptr, true, true, false,
     u" Wörter vorbereitet", u"", u" Wörter zum Abschreiben", u" Wörter übrig zum Abschreiben",
     u"alle Wörter", u"SMILEY"},
    {u"RNDWORDSFROMSCREEN", u"CORRECT_WORDS", RetypeSource::Board, nullptr, false, true, false,
     u" Wörter vorbereitet", u"", u" Wörter zum Abschreiben", u" Wörter übrig zum Abschreiben",
     u"alle Wörter", u"SMILEY"},
    {u"KURZVOKAL", u"KURZVOKAL", RetypeSource::WordList, u"KURZ", false, false, false,
     u" Kurzvokale vorbereitet", u"Noch ", u" Wortele mit kurzem Vokal", u" Wortele mit kurzem Vokal",
     u"alle Wortele mit kurzem Vokal", u""},
    {u"LANGVOKAL", u"LANGVOKAL", RetypeSource::WordList, u"LANG", false, true, true,
     u" Langvokale vorbereitet", u"Noch ", u" Wortele mit langem Vokal", u" Wortele mit langem Vokal",
     u"alle Wortele mit langem Vokal", u""},
    {u"PSEUDOWORDSFROMSCREEN", u"PSEUDO_WORDS", RetypeSource::Nonsense, nullptr, false, false, false,
     u" Wörter vorbereitet", u"", u" Unsinnswörter zum Abschreiben", u" Wörter übrig zum Abschreiben",
     u"alle Wörter", u"SMILEY"},
};

/// The source of that mode, or nullptr.
constexpr const RetypeSource *retypeSourceOfMode(QStringView mode)
{
    for (const RetypeSource &source : retypeSources) {
        if (mode == QStringView(source.mode))
            return &source;
    }
    return nullptr;
}

/// The first source of that kind, or nullptr.
constexpr const RetypeSource *retypeSourceOfKind(QStringView kind)
{
    for (const RetypeSource &source : retypeSources) {
        if (kind == QStringView(source.kind))
            return &source;
    }
    return nullptr;
}
