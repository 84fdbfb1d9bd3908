// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/chooser/chooser_rules.h"

#include "platform/text.h"
#include "platform/word_store.h"

#include <algorithm>
#include <array>

namespace {

constexpr int shortestLongWord = 10; ///< letters

constexpr std::array<QStringView, 6> adjectiveEndings{u"IG", u"LICH", u"LOS", u"SAM", u"BAR", u"HAFT"};
constexpr std::array<QStringView, 6> nomenEndings{u"UNG", u"KEIT", u"SCHAFT", u"NIS", u"TUM", u"EREI"};

template <typename Endings> bool endsWithOne(const QString &word, const Endings &endings)
{
    return std::any_of(endings.begin(), endings.end(), [&](QStringView ending) {
        return ending.size() <= word.size() &&
               equalsIgnoreCase(QStringView(word).last(ending.size()), ending);
    });
}

} // namespace

bool passes(const QString &word, WordFilter filter)
{
    switch (filter) {
    case WordFilter::All:
        return true;
    case WordFilter::Short:
        return word.size() < shortestLongWord;
    case WordFilter::Long:
        return word.size() >= shortestLongWord;
    case WordFilter::Capital:
        return word == InitCapWord(word);
    case WordFilter::NotCapital:
        return word != InitCapWord(word);
    }
    return true;
}

bool IsAdjectiveSuffix(const QString &word) { return endsWithOne(word, adjectiveEndings); }

bool IsNomenSuffix(const QString &word) { return endsWithOne(word, nomenEndings); }

bool IsInPrefixList(const QString &word, const QStringList &marked)
{
    return std::any_of(marked.begin(), marked.end(),
                       [&](const QString &prefix) { return StartsWith(word, prefix); });
}

bool IsInSuffixList(const QString &word, const QStringList &marked) { return endsWithOne(word, marked); }

QStringList withoutDuplicates(const QStringList &words)
{
    WordStore kept;
    for (const QString &word : words)
        if (!kept.contains(word))
            kept.add(word);
    return kept.rows();
}
