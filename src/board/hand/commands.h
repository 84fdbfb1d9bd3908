// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>

/// The one table of what can be commanded on the board by menu or key: what a command does, what it needs,
/// what it asks first, and how it ends. The numbers 104 and 105 occur twice, because they mean something else
/// on a tile and on an empty spot.
namespace command {

/// Where a command comes from. The id of a key is its control character: Ctrl+A is 1.
enum class From : std::uint8_t { TileMenu, MainMenu, Key };

enum class Does : std::uint8_t {
    OtherRoom, ///< announced by its number; `argument` is the number if it differs from the id
    ShowTip,   ///< the same, unless a tip is showing
    EditTile,
    RemoveTile,
    ToggleCapitals,
    CopyTile, ///< `argument` copies
    ShowList, ///< `argument`: index of the kind, here and below
    SelectFilter,
    Insert,
    Refill, ///< with `argument` Wortel tiles
    AddOneWortel,
    AddWortelFree, ///< one, by the setting without overlap
    AddRandom,
    EraseKind,
    CapitalsOfKind,
    ShuffleKind,
    ReplaceAllWortel,
    SpreadWortel,
    LineUp, ///< `argument` 0 as they are, 1 sorted, 2 sorted and without duplicates
    ToggleLists,
    EraseAll,
    ShuffleAll,
    SpreadAll, ///< `argument` 1 sorts and drops duplicates first
    Count
};

/// For a number of tiles: the one in the box "Anzahl Wortel".
inline constexpr std::int16_t presetNumber = -1;

/// The counter that must be above 0; otherwise a notice says what is missing.
enum class Needs : std::int8_t { Wortel, Prefix, Suffix, AnyTile, Nothing };

enum class Asks : std::uint8_t {
    Nothing,
    Removal,   ///< in the colour of the kind, unless the setting saves the question
    RemoveAll, ///< unless the setting saves the question
    Always
};

enum Flag : std::uint16_t {
    None = 0,
    NotInGame = 1, ///< nothing happens while the word game runs
    SoundFirst = 2,
    // Endings, in this order:
    Commits = 4,  ///< undo snapshot and backup
    BacksUp = 8,  ///< backup only
    Recalls = 16, ///< the filter of before
    SelectsAll = 32,
    RebuildsMenus = 64,
    // Keys only:
    StepBack = 128, ///< only if a step can be undone
    StepForward = 256,
};

struct Command
{
    From from;
    std::int16_t id;
    Does does;
    std::int16_t argument;
    std::uint16_t flags;
    std::int8_t sound;       ///< resource number, 0 for none
    const char16_t *logWord; ///< nullptr: not logged
    Needs needs = Needs::Nothing;
    const char16_t *missing = nullptr;
    Asks asks = Asks::Nothing;
    const char16_t *question = nullptr;
};

std::span<const Command> table();
/// The command of that number, or nullptr.
const Command *find(From from, int id);

/// What a kind of tile says in boxes, by the index of its counter.
struct KindWords
{
    const char16_t *insertTitle;
    const char16_t *editTitle;
    const char16_t *prompt;
    const char16_t *removeQuestion;
};
const KindWords &words(int kindIndex);

} // namespace command
