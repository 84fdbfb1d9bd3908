// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/long_pass.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

class Rnd;
class WordStore;

/// What the stem game does with the words of a text and with its work list.
namespace kernling {

/// The distinct words of `text` in the order of their first appearance, without regard to case; with a
/// `wordLength` other than 0 those of exactly that many characters. Nothing if `step` ended the pass.
std::optional<QStringList> UniqueWords(const QString &text, int wordLength, const PassStep &step = {});
/// The same of the text cleaned by `CleanSelection`.
std::optional<QStringList> GetWordsFromText(const QString &text, int wordLength, const PassStep &step = {});
/// Each word behind a carriage return: what replaces the text.
QString asLines(const QStringList &words);

/// The places at which `word` stands as a whole word, case ignored: neither letter nor digit before it nor
/// behind it. Ascending; they do not overlap. None for an empty word. `step` is asked every `hitStride`
/// characters; if it ends the pass, the places that were found until then come back.
std::vector<qsizetype> wholeWordHits(const QString &text, const QString &word, const PassStep &step = {});
inline constexpr qsizetype hitStride = 100 * passStride; ///< a matcher passes it in a millisecond or two

/// A new order of the list, by `RandomArray`.
void ShuffleAllWords(WordStore &list, Rnd &rnd);
/// Exchanges a row with the one above or below it. Returns the place where it stands then; a row that has no
/// neighbour there stays.
int list_move_up(WordStore &list, int row);
int list_move_down(WordStore &list, int row);
/// Up to `wanted` different rows of `count`, ascending: each is drawn until one is free, and given up after
/// 500 draws.
std::vector<int> randomRows(int count, int wanted, Rnd &rnd);

/// False for the two stem lists whose tiles make neither letter mixes nor scrambles. `listName` in any case.
bool suitsScrambles(const QString &listName);

} // namespace kernling
