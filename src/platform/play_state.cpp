// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/play_state.h"

void PlayState::become(const Now &now, Vowels checked, int level)
{
    if (now == now_ && checked == checked_ && level == level_)
        return;
    now_ = now;
    checked_ = checked;
    level_ = level;
    emit changed();
}

void PlayState::setLevel(int level) { become(now_, checked_, level); }

void PlayState::setCheckedVowels(Vowels vowels) { become(now_, vowels, level_); }

void PlayState::startGame(Phase phase, Vowels vowels)
{
    become({Mode::WordGame, phase, vowels, WordSource::UserWords}, checked_, level_);
}

void PlayState::endPreparation()
{
    Now now = now_;
    now.phase = Phase::Playing;
    become(now, checked_, level_);
}

void PlayState::startRetyping(WordSource source)
{
    become({Mode::Retyping, Phase::Playing, Vowels::None, source}, checked_, level_);
}

void PlayState::stop() { become({}, Vowels::None, level_); }
