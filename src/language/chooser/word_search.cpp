// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/chooser/word_search.h"

#include "language/chooser/chooser_rules.h"
#include "platform/text.h"
#include "platform/word_store.h"
#include "platform/work.h"

namespace {

constexpr int itemsPerStep = 10; ///< between two moves of the bar, or two questions for events

} // namespace

WordSearch::WordSearch(const WordStore &LexiconList, WordStore &found)
    : words_(LexiconList.rows())
    , found_(found)
{}

bool WordSearch::Duplicate(const QString &word) const { return !word.isEmpty() && found_.contains(word); }

void WordSearch::append(const QString &word)
{
    if (!Duplicate(word))
        emit found(found_.add(word) + 1);
}

void WordSearch::findStems(const QStringList &stems, Work &work)
{
    emit begins(static_cast<int>(stems.size()));
    int done = 0;
    for (const QString &stem : stems) {
        emit stemBegins(stem);
        AddSelWortelFromLex(stem, work);
        emit progressed(++done);
        if (!work.goesOn())
            return;
    }
}

void WordSearch::AddSelWortelFromLex(const QString &stem, Work &work)
{
    if (folded_.isEmpty())
        for (const QString &word : words_)
            folded_.append(UCase(word));
    const QString wanted = UCase(stem);
    for (qsizetype i = 0; i < words_.size(); ++i) {
        const bool isFound = folded_.at(i).contains(wanted);
        if (isFound)
            append(words_.at(i));
        // A question for events takes longer than the test of a word.
        if (isFound || (i + 1) % itemsPerStep == 0)
            work.goesOn();
    }
}

template <typename Test> void WordSearch::pass(const Test &test, Work &work)
{
    emit begins(static_cast<int>(words_.size()));
    for (qsizetype i = 0; i < words_.size(); ++i) {
        if (test(words_.at(i)))
            append(words_.at(i));
        if ((i + 1) % itemsPerStep != 0)
            continue;
        emit progressed(static_cast<int>(i + 1));
        if (!work.goesOn())
            return;
    }
}

void WordSearch::AddSelPrefixFromLex(const QStringList &marked, Work &work)
{
    pass([&](const QString &word) { return IsInPrefixList(word, marked); }, work);
}

void WordSearch::AddSelSuffixFromLex(const QStringList &marked, bool adjectives, bool nouns, Work &work)
{
    if (!adjectives && !nouns)
        pass([&](const QString &word) { return IsInSuffixList(word, marked); }, work);
    if (adjectives)
        pass(IsAdjectiveSuffix, work);
    if (nouns && !work.isCancelled())
        pass(IsNomenSuffix, work);
}
