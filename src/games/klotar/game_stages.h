// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/play_state.h"
#include "platform/settings_table.h"

#include <QString>

#include <algorithm>

/// A stretch of the game with a time of its own.
struct GameStage
{
    PlayState::Phase phase;
    Setting minutes;
    int dragMode; ///< index of the drag mode: 0 to the word field, 1 on the board
    /// Behind the minutes at its start; the second for 1 minute.
    const char16_t *minutesTo;
    const char16_t *minuteTo;
    const char16_t *task; ///< as it is read from afar
};

namespace game_stages {

using Phase = PlayState::Phase;

inline constexpr GameStage building{Phase::Preparing,        Setting::GamePrepareTimeOut, 1,
                                    u" Minuten zum Wortbau", u" Minute zum Wortbau",      u"Bauen"};
inline constexpr GameStage entering{Phase::Playing,           Setting::GameTimeOut,    0,
                                    u" Minuten zum Eingeben", u" Minute zum Eingeben", u"Eingeben"};
inline constexpr GameStage writing{
    Phase::Playing,           Setting::GameTimeOut, 1, u" Minuten zum Schreiben",
    u" Minute zum Schreiben", u"Schreiben"};

/// With which the level, 1 to 3, begins. Building is followed by entering.
constexpr const GameStage &first(int level)
{
    return level == 1 ? building : level == 2 ? entering : writing;
}

/// What the bar says at the start of a stage of that many minutes.
QString startCaption(const GameStage &stage, int minutes);
/// What it says after each minute of building: the plural even for the last one, deliberately.
QString buildingCaption(int left);
/// What it says when its value changes. Whether it is one minute is deliberately asked of the value, not of
/// what is left.
QString valueCaption(int maximum, int value);

} // namespace game_stages

/// The minutes of one stage. A limit below 1 is over with the first minute.
class StageMinutes
{
public:
    explicit StageMinutes(int limit = 1)
        : limit_(limit)
    {}

    int maximum() const { return std::max(1, limit_); }
    int value() const { return value_; }
    int left() const { return std::max(0, maximum() - value_); }
    /// One more minute. True if the stage is over.
    bool pass() { return ++value_ >= limit_; }

private:
    int limit_;
    int value_ = 0;
};
