// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "games/paarlon/morpheme_pick.h"

#include <QDateTime>

#include <array>
#include <cstdint>

class Clock;

/// The rules of the card game: 18 morphemes on 36 cards, two are turned at a time, and each second card
/// counts a click. Knows no window, no list and no sound.
class MemoryRules
{
public:
    static constexpr int cards = 36;
    static constexpr int pairs = morphemes::perGame;
    static constexpr int noCard = -1;

    /// What a click on a card came to.
    enum class Turn : std::uint8_t {
        Ignored,
        First,   ///< the card is up, the turn is open
        Counted, ///< a solved card as the second one: it has cost a click, and the turn stays open
        NoPair,  ///< both are up until `turnDown`
        Pair,
        Finished ///< the last pair
    };

    MemoryRules(Rnd &rnd, const Clock &clock);

    /// Deals these 18 morphemes, two cards each, and begins to count clicks and seconds.
    void deal(const QStringList &gameMorphemes);
    Turn click(int card);
    /// The two cards of a turn without a pair are down again.
    void turnDown();

    bool isDealt() const { return !GameMorphemes_.isEmpty(); }
    bool isSolved(int card) const { return solved_[at(card)]; }
    bool isUp(int card) const { return card == FirstCard_ || card == SecondCard_; }
    /// All cards rest, because the two of a turn wait for `turnDown`.
    bool isWaiting() const { return SecondCard_ != noCard; }
    bool FirstCardTurned() const { return FirstCard_ != noCard; }
    /// The card's place in the game's morphemes, 1 to 18.
    int CardMorpheme(int card) const { return CardMorpheme_[at(card)]; }
    morphemes::Print printOf(int card) const;

    int Clicks() const { return Clicks_; }
    void setClicks(int clicks) { Clicks_ = clicks; }
    int PairsFound() const { return PairsFound_; }
    /// Whole seconds since the cards were dealt, up to the last pair; 0 if the clock was set back.
    int seconds() const;

private:
    static std::size_t at(int card) { return static_cast<std::size_t>(card); }
    Turn secondCard(int card);

    Rnd &rnd_;
    const Clock &clock_;
    QStringList GameMorphemes_;
    std::array<int, cards> CardMorpheme_{};
    std::array<bool, cards> solved_{};
    int FirstCard_ = noCard;
    int SecondCard_ = noCard;
    int PairsFound_ = 0;
    int Clicks_ = 0;
    QDateTime StartTime_;
    QDateTime EndTime_;
};
