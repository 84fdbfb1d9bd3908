// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

namespace langdata {

/// What a list gives on seeded boards of 20 prefixes, 20 stems and 20 suffixes.
struct BoardStats
{
    double listShare = 0;  ///< share of all triples of the whole list that are words
    double worstShare = 0; ///< the same on the worst board
    int fewestWords = 0;   ///< words that the worst board can form, parts left out included
    int middleWords = 0;   ///< the same on the middle board
    double meanTries = 0;  ///< random triples until ten different words are found
    double worstTries = 0; ///< the same, mean of the worst board
};

/// Plays 400 boards with a fixed seed. `words` holds the dictionary in lower case.
BoardStats playBoards(const QStringList &prefixes, const QStringList &stems, const QStringList &suffixes,
                      const QSet<QString> &words);

} // namespace langdata
