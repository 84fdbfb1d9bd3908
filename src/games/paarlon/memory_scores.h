// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "games/paarlon/memory_kind.h"
#include "games/paarlon/top_ten.h"

class SettingsStore;

/// What the card game keeps in the settings, section "MemoryGame".
class MemoryScores
{
public:
    explicit MemoryScores(SettingsStore &store)
        : store_(store)
    {}

    TopTen topTen(const MemoryKind &kind) const;
    void saveTopTen(const MemoryKind &kind, const TopTen &list);
    /// The seed for the list of `kind`, or for all three with nullptr, and no best score, time and name.
    void reset(const MemoryKind *kind);

    int Score() const;
    int Time() const; ///< seconds
    void saveRecord(int clicks);

    /// For how many milliseconds two cards without a pair stay up. A value that no timer takes (0 or less,
    /// above 65.535 seconds, no number) leaves the usual two seconds.
    int visibleTime() const;

    /// The five colours that are kept when the window closes, under names that nothing reads.
    struct CardColours
    {
        Colour TurnedColor = 0;
        Colour FaceDownColor = 0;
        Colour TextColor = 0;
        Colour SolvedColor = 0;
        Colour SolvedColor2 = 0;
    };
    void saveColours(const CardColours &colours);

private:
    QString read(const char16_t *key, const QString &fallback) const;

    SettingsStore &store_;
};
