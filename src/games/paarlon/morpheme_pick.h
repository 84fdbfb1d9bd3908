// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

class Rnd;
class WordStore;

/// How the texts of a game come out of a list.
namespace morphemes {

inline constexpr int perGame = 18;
/// So many entries a list needs: the last one is never drawn.
inline constexpr int leastEntries = perGame + 1;

/// Fills a short list of stems with twins: each of its `lines` once more, followed by a running even number,
/// until there are enough. The lines are gone through only once, so fewer than ten of them never fill it.
void addNumberedTwins(WordStore &list, const QStringList &lines);

bool canPick(const WordStore &list);
/// Eighteen different entries of the list in its order; entries of equal text are different ones. The draw
/// has always gone so: the last entry never comes, and the second has double weight. `canPick` must hold.
QStringList pick(const WordStore &list, Rnd &rnd);

/// What is printed on a card: an ending digit from 1 to 9 becomes the small mark, and goes from the text
/// wherever it stands in it.
struct Print
{
    QString text;
    QString mark;
    bool operator==(const Print &) const = default;
};
Print printOf(const QString &morpheme);

} // namespace morphemes
