// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "boards.h"

#include <QHash>

#include <algorithm>
#include <random>
#include <utility>
#include <vector>

namespace langdata {
namespace {

constexpr int boards = 400;
constexpr int stemsOnBoard = 20;
constexpr int wantedWords = 10;

/// The words of one stem: which triples are words, and how many words it forms in all.
struct StemWords
{
    std::vector<qsizetype> triples; ///< numbers of the words
    int formed = 0;
};

/// `numbers` grows by the words found; two stems may build the same one.
StemWords wordsOf(const QStringList &prefixes, const QString &stem, const QStringList &suffixes,
                  const QSet<QString> &words, QHash<QString, qsizetype> &numbers)
{
    StemWords result;
    const auto count = [&](const QString &word) { result.formed += words.contains(word) ? 1 : 0; };
    count(stem);
    for (const QString &suffix : suffixes)
        count(stem + suffix);
    for (const QString &prefix : prefixes) {
        count(prefix + stem);
        for (const QString &suffix : suffixes) {
            const QString word = prefix + stem + suffix;
            count(word);
            if (!words.contains(word))
                continue;
            if (!numbers.contains(word))
                numbers.insert(word, numbers.size());
            result.triples.push_back(numbers.value(word));
        }
    }
    return result;
}

/// Mean number of draws until `wanted` different ones of `good` out of `all` came up.
double triesFor(size_t wanted, size_t good, double all)
{
    double tries = 0;
    for (size_t found = 0; found < wanted; ++found)
        tries += found < good ? all / double(good - found) : all * all;
    return tries;
}

} // namespace

BoardStats playBoards(const QStringList &prefixes, const QStringList &stems, const QStringList &suffixes,
                      const QSet<QString> &words)
{
    std::vector<StemWords> perStem;
    QHash<QString, qsizetype> numbers;
    size_t triples = 0;
    for (const QString &stem : stems) {
        perStem.push_back(wordsOf(prefixes, stem, suffixes, words, numbers));
        triples += perStem.back().triples.size();
    }
    const double perTile = double(prefixes.size()) * double(suffixes.size());
    BoardStats stats;
    stats.listShare = double(triples) / (perTile * double(stems.size()));
    stats.worstShare = 1;

    std::mt19937 random(20260101); // the engine's sequence is fixed by the language standard
    std::vector<int> formed;
    std::vector<int> lastBoard(size_t(numbers.size()), -1); // of each word
    std::vector<size_t> order(perStem.size());
    for (int board = 0; board < boards; ++board) {
        for (size_t i = 0; i < order.size(); ++i)
            order[i] = i;
        const size_t drawn = std::min<size_t>(stemsOnBoard, order.size());
        size_t good = 0;
        int all = 0;
        for (size_t i = 0; i < drawn; ++i) {
            std::swap(order[i], order[i + random() % (order.size() - i)]);
            const StemWords &stem = perStem[order[i]];
            for (const qsizetype word : stem.triples)
                good += std::exchange(lastBoard[size_t(word)], board) != board ? 1 : 0;
            all += stem.formed;
        }
        const double places = perTile * double(drawn);
        stats.worstShare = std::min(stats.worstShare, double(good) / places);
        const double tries = triesFor(wantedWords, good, places);
        stats.meanTries += tries / boards;
        stats.worstTries = std::max(stats.worstTries, tries);
        formed.push_back(all);
    }
    std::sort(formed.begin(), formed.end());
    stats.fewestWords = formed.front();
    stats.middleWords = formed[formed.size() / 2];
    return stats;
}

} // namespace langdata
