// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/sounds.h"

#include <cstdint>
#include <span>

/// The one table of what can be commanded on the board by menu or key: what a command needs, what it asks
/// first, and how it ends. What it does is registered by the room that does it (`CommandRouter`). The numbers
/// 104 and 105 occur twice, because they mean something else on a tile and on an empty spot.
namespace command {

/// Where a command comes from. The id of a key is its control character: Ctrl+A is 1. The pointer's are those
/// that it gives with a shift key, without a menu; their numbers are those of the menu.
enum class From : std::uint8_t { TileMenu, MainMenu, Pointer, Key };

/// For a number of tiles: the one in the box "Anzahl Wortel".
inline constexpr std::int16_t presetNumber = -1;
inline constexpr std::int16_t allKinds = 3;

/// The counter that must be above 0; otherwise a notice says what is missing.
enum class Needs : std::int8_t { Wortel, Prefix, Suffix, AnyTile, Nothing };

enum class Asks : std::uint8_t {
    Nothing,
    Removal,   ///< in the colour of the kind, unless the setting saves the question
    RemoveAll, ///< unless the setting saves the question
    Always
};

enum Flag : std::uint8_t {
    None = 0,
    NotInGame = 1, ///< nothing happens while the word game runs
    SoundFirst = 2,
    // Endings, in this order:
    Commits = 4, ///< tiles have changed: undo snapshot and backup
    Recalls = 8, ///< the filter of before
    SelectsAll = 16,
    Looks = 32,        ///< changes nothing: allowed while a work runs
    NotInRetype = 128, ///< nor while words are copied
    WhileTyping = 64,  ///< a key that no text field has a use for
};

struct Command
{
    From from;
    std::int16_t id;
    std::int16_t
        argument; ///< index of a kind, a number of tiles, or what else the command's room makes of it
    std::uint8_t flags;
    SoundId sound;
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
