// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

enum class Setting : int;
struct Ground;

/// The sounds of the program, by the numbers of their resources.
enum class SoundId : std::uint8_t {
    None = 0,
    WordRight = 101,
    WordNotFound = 102,
    AllCopied = 103,
    EntryCleared = 105,
    KeyTyped = 106,
    TileDropped = 107,
    GameOver = 108,
    TilesShuffled = 109,
    TipShown = 110,
    Capitals = 111,
    PairFound = 112,
    BallBounces = 113,
    FirstCard = 114,
    NoPair = 115,
    Welcome = 117,
    GoodBye = 118,
    GameStarted = 119,
    TilesAdded = 120,
    ListOpened = 121,
    TilesErased = 122,
    TileInserted = 123,
    WrongVowels = 124,
};

/// Plays the sound if its setting is on. Some answer to the setting of another sound; it has always been so.
/// True if it was played.
bool playSound(const Ground &ground, SoundId id);
/// The same on an occasion that has a setting of its own.
bool playSound(const Ground &ground, SoundId id, Setting gate);
