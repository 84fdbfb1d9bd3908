// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "generators/scrambled_words.h"

#include "language/word_tests.h"
#include "platform/rnd.h"
#include "platform/text.h"
#include "platform/word_lists.h"

#include <algorithm>
#include <array>

namespace scramble {

namespace {

constexpr int letterCount = 52;
constexpr int longestAffix = 8;

/// The letters stand at 1 to 52.
constexpr std::array<char16_t, 64> makeLetters()
{
    std::array<char16_t, 64> letters{};
    for (std::size_t i = 0; i < 26; ++i) {
        letters[i + 1] = static_cast<char16_t>(u'A' + i);
        letters[i + 27] = static_cast<char16_t>(u'a' + i);
    }
    return letters;
}

constexpr std::array<char16_t, 64> letterTable = makeLetters();

struct Piece
{
    enum Kind { None, Prefix, Stem, Suffix, Random } kind = None;
    int length = 0; ///< of random letters
};

constexpr Piece prefix{Piece::Prefix};
constexpr Piece stem{Piece::Stem};
constexpr Piece suffix{Piece::Suffix};
constexpr Piece random(int length) { return {Piece::Random, length}; }

using Row = std::array<Piece, 4>;

constexpr std::array<Row, drawnOrders + 1> orders{{
    {suffix, stem, prefix},
    {suffix, prefix, stem},
    {stem, prefix, suffix},
    {stem, suffix, prefix},
    {prefix, suffix, stem},
}};

constexpr std::array<Row, drawnMixes + 1> mixes{{
    {suffix, stem, prefix},
    {suffix, prefix, stem, random(1)},
    {suffix, prefix, stem, random(2)},
    {},
    {prefix, stem, suffix},
    {prefix, stem, random(4), suffix},
    {random(1), stem, suffix},
    {random(2), stem, suffix},
}};

/// `fill` gives the random letters.
template <typename Fill> QString build(const Row &row, const Morphemes &parts, Fill &&fill)
{
    QString word;
    for (const Piece &piece : row) {
        switch (piece.kind) {
        case Piece::None:
            break;
        case Piece::Prefix:
            word += parts.Prefix;
            break;
        case Piece::Stem:
            word += parts.Stem;
            break;
        case Piece::Suffix:
            word += parts.Suffix;
            break;
        case Piece::Random:
            word += fill(piece.length);
            break;
        }
    }
    return word;
}

int draw(int count, Rnd &rnd)
{
    rnd.Randomize();
    return static_cast<int>(Fix(rnd() * count));
}

} // namespace

QString CreateRandomString(int Length, Rnd &rnd)
{
    QString letters(std::max(0, Length), Qt::Uninitialized);
    for (QChar &letter : letters) {
        rnd.Randomize();
        letter = QChar(letterTable[static_cast<std::size_t>(Int(letterCount * rnd() + 1))]);
    }
    return letters;
}

QString inOrder(const Morphemes &parts, int number)
{
    return build(orders.at(static_cast<std::size_t>(number)), parts, [](int) { return QString(); });
}

QString mixed(const Morphemes &parts, int number, Rnd &rnd)
{
    return build(mixes.at(static_cast<std::size_t>(number)), parts,
                 [&](int length) { return CreateRandomString(length, rnd); });
}

void replaceAffixes(WordLists &lists, Rnd &rnd)
{
    for (WordStore *store : {&lists.PrefixReTypeList, &lists.SuffixReTypeList})
        for (int row = 0; row < store->count(); ++row)
            store->replace(row, CreateRandomString(draw(longestAffix, rnd) + 1, rnd));
}

/// Only a real word may be scrambled; it is looked for in its proper order, in the list of the results too.
bool tryScramble(WordLists &lists, const WordTests &tests, Rnd &rnd)
{
    const Morphemes parts = drawMorphemes(lists, rnd);
    const QString word = parts.joined();
    if (!tests.ChkForDuplicates2(word) || tests.ChkForDuplicates3(word))
        return false;
    lists.PseudoWordList.add(inOrder(parts, draw(drawnOrders, rnd)));
    return true;
}

bool tryLetterMix(WordLists &lists, int wordLength, Rnd &rnd)
{
    const Morphemes parts = drawMorphemes(lists, rnd);
    QString word = mixed(parts, draw(drawnMixes, rnd), rnd);
    if (Trim(word).isEmpty())
        return false;
    const int wanted = std::min(wordLength, longestMix);
    word += CreateRandomString(wanted - static_cast<int>(word.size()), rnd);
    lists.PseudoWordList.add(word);
    return true;
}

} // namespace scramble
