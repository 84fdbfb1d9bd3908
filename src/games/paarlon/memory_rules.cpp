// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/paarlon/memory_rules.h"

#include "platform/clock.h"
#include "platform/rnd.h"

#include <algorithm>

MemoryRules::MemoryRules(Rnd &rnd, const Clock &clock)
    : rnd_(rnd)
    , clock_(clock)
{}

void MemoryRules::deal(const QStringList &gameMorphemes)
{
    Q_ASSERT(gameMorphemes.size() == pairs);
    GameMorphemes_ = gameMorphemes;
    std::array<int, pairs> dealt{};
    for (int &morpheme : CardMorpheme_) {
        int drawn = 0;
        do
            drawn = rnd_.absInt(pairs);
        while (dealt[at(drawn)] == 2);
        ++dealt[at(drawn)];
        morpheme = drawn + 1;
    }
    solved_.fill(false);
    FirstCard_ = SecondCard_ = noCard;
    PairsFound_ = Clicks_ = 0;
    StartTime_ = clock_.now();
    EndTime_ = {};
}

MemoryRules::Turn MemoryRules::click(int card)
{
    if (!isDealt() || isWaiting())
        return Turn::Ignored;
    if (FirstCardTurned())
        return secondCard(card);
    if (isSolved(card))
        return Turn::Ignored;
    FirstCard_ = card;
    return Turn::First;
}

MemoryRules::Turn MemoryRules::secondCard(int card)
{
    if (card == FirstCard_)
        return Turn::Ignored;
    ++Clicks_; // before the solved card is told: that such a click costs is a rule of the game
    if (isSolved(card))
        return Turn::Counted;
    if (CardMorpheme(card) != CardMorpheme(FirstCard_)) {
        SecondCard_ = card;
        return Turn::NoPair;
    }
    solved_[at(card)] = solved_[at(FirstCard_)] = true;
    FirstCard_ = noCard;
    if (++PairsFound_ < pairs)
        return Turn::Pair;
    EndTime_ = clock_.now();
    return Turn::Finished;
}

void MemoryRules::turnDown() { FirstCard_ = SecondCard_ = noCard; }

morphemes::Print MemoryRules::printOf(int card) const
{
    return morphemes::printOf(GameMorphemes_.value(CardMorpheme(card) - 1));
}

int MemoryRules::seconds() const
{
    const qint64 passed = StartTime_.msecsTo(EndTime_.isValid() ? EndTime_ : clock_.now());
    return static_cast<int>(std::clamp<qint64>(passed / 1000, 0, INT_MAX));
}
