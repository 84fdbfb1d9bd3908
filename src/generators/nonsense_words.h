// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "generators/morphemes.h"

#include <optional>
#include <vector>

class WordTests;

/// The rules by which three morphemes become a word that looks German and is none. They are a fixed list of
/// string tests, and their order matters: the first that fits decides.
namespace nonsense {

/// Stem and suffix in capitals, with the linking e before "ST" behind t and d: what the cluster test looks
/// at.
QString stretchOf(const QString &stem, const QString &suffix);
/// True if a text in capitals holds a forbidden cluster; a whole word of the result list is held against one
/// more, "SST".
bool holdsBadCluster(const QString &capitals);
bool holdsBadClusterForSweep(const QString &capitals);

/// The drawn suffix with what leads "keit", "heit" and "ung" in, and "igkeit" drawn anew.
QString expandSuffix(const QString &suffix, Rnd &rnd);
/// The parts joined; with `initCapRule` 1 a bare noun suffix gives the word a capital, with 0 it does not.
/// Any other state of the option gives the empty word.
QString join(const Morphemes &parts, int initCapRule);
/// The form in which a word is accepted, with its linked e, or nothing if it breaks a pattern.
std::optional<QString> acceptedForm(const QString &word);

/// The words of a run that hold a forbidden cluster as a whole. A sweep after every round looks at all words
/// from the first to the last and takes the bad ones out; the word that moves up into a gap is passed over
/// until the next sweep. Only the bad rows are remembered, so that a sweep costs nothing where there are
/// none.
class Sweep
{
public:
    /// A word was added to the list at `row`.
    void added(int row, const QString &word);
    /// One sweep over `list`; returns how many words went.
    int run(WordStore &list);

private:
    std::vector<int> badRows_; ///< ascending
};

/// The rounds of one run over `PseudoWordList`, which is empty at its start.
class Generator
{
public:
    Generator(WordLists &lists, const WordTests &tests, Rnd &rnd, int initCapRule)
        : lists_(lists)
        , tests_(tests)
        , rnd_(rnd)
        , initCapRule_(initCapRule)
    {}

    /// Draws a candidate and adds its accepted form. True if a word was added.
    bool tryWord();
    /// The sweep that ends each round; returns how many words went.
    int sweep();

private:
    QString candidate();

    WordLists &lists_;
    const WordTests &tests_;
    Rnd &rnd_;
    int initCapRule_;
    Sweep sweep_;
};

} // namespace nonsense
