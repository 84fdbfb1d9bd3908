// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/sounds.h"

#include "platform/ground.h"
#include "platform/options.h"
#include "platform/sound.h"

#include <algorithm>

namespace {

struct SoundRow
{
    SoundId id;
    Setting gate;
};

constexpr SoundRow sounds[] = {
    {SoundId::WordRight, Setting::UseSounds},
    {SoundId::WordNotFound, Setting::UseSounds},
    {SoundId::KeyTyped, Setting::UseSounds},
    {SoundId::AllCopied, Setting::SoundOnAllReTyped},
    {SoundId::Capitals, Setting::SoundOnAllReTyped},
    {SoundId::EntryCleared, Setting::GameSoundOnTimeOut},
    {SoundId::TileDropped, Setting::GameSoundOnTimeOut},
    {SoundId::GameOver, Setting::GameSoundOnTimeOut},
    {SoundId::PairFound, Setting::UseSoundsInMemory},
    {SoundId::BallBounces, Setting::UseSoundsInMemory},
    {SoundId::FirstCard, Setting::UseSoundsInMemory},
    {SoundId::NoPair, Setting::UseSoundsInMemory},
    {SoundId::TilesShuffled, Setting::SoundOnActions},
    {SoundId::TipShown, Setting::SoundOnActions},
    {SoundId::Welcome, Setting::SoundOnActions},
    {SoundId::GoodBye, Setting::SoundOnActions},
    {SoundId::GameStarted, Setting::SoundOnActions},
    {SoundId::TilesAdded, Setting::SoundOnActions},
    {SoundId::ListOpened, Setting::SoundOnActions},
    {SoundId::TilesErased, Setting::SoundOnActions},
    {SoundId::TileInserted, Setting::SoundOnActions},
    {SoundId::WrongVowels, Setting::SoundOnActions},
};

} // namespace

bool playSound(const Ground &ground, SoundId id)
{
    const auto row = std::find_if(std::begin(sounds), std::end(sounds),
                                  [id](const SoundRow &sound) { return sound.id == id; });
    return row != std::end(sounds) && playSound(ground, id, row->gate);
}

bool playSound(const Ground &ground, SoundId id, Setting gate)
{
    if (!ground.options.isOn(gate))
        return false;
    ground.sound.PlayResourceSound(static_cast<int>(id));
    return true;
}
