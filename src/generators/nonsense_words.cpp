// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "generators/nonsense_words.h"

#include "generators/nonsense_tables.h"
#include "language/word_tests.h"
#include "platform/rnd.h"
#include "platform/text.h"
#include "platform/word_lists.h"

using namespace Qt::StringLiterals;

namespace nonsense {

namespace {

bool holdsOneOf(const QString &capitals, std::size_t clusters)
{
    return std::any_of(BadClusterSweepList.begin(), BadClusterSweepList.begin() + clusters,
                       [&](QStringView cluster) { return capitals.contains(cluster); });
}

QStringView drawFrom(const Draw &table, Rnd &rnd)
{
    rnd.Randomize();
    return table.choices[static_cast<std::size_t>(Fix(rnd() * table.drawn))];
}

template <std::size_t size> bool endsInOneOf(const QString &capitals, const Table<size> &endings)
{
    return std::any_of(endings.begin(), endings.end(),
                       [&](QStringView ending) { return capitals.endsWith(ending); });
}

} // namespace

QString stretchOf(const QString &stem, const QString &suffix)
{
    QString stretch = UCase(stem + suffix);
    if (stretch.endsWith("TST"_L1) || stretch.endsWith("DST"_L1))
        stretch.replace("ST"_L1, "EST"_L1);
    return stretch;
}

bool holdsBadCluster(const QString &capitals) { return holdsOneOf(capitals, badClusterCount); }
bool holdsBadClusterForSweep(const QString &capitals)
{
    return holdsOneOf(capitals, BadClusterSweepList.size());
}

QString expandSuffix(const QString &suffix, Rnd &rnd)
{
    QString result = suffix;
    const QString capitals = UCase(suffix);
    if (capitals == "KEIT"_L1)
        result = drawFrom(keitLinks, rnd).toString() + suffix;
    else if (capitals == "HEIT"_L1)
        result = "en"_L1 + suffix;
    else if (capitals == "UNG"_L1)
        result = drawFrom(ungLinks, rnd).toString() + suffix;
    if (UCase(result) == "IGKEIT"_L1)
        result = drawFrom(igkeitChoices, rnd).toString();
    return result;
}

QString join(const Morphemes &parts, int initCapRule)
{
    if (initCapRule == 1 && isIn(CapSuffixList, UCase(parts.Suffix)))
        return InitCapWord(parts.joined());
    return initCapRule == 0 || initCapRule == 1 ? parts.joined() : QString();
}

std::optional<QString> acceptedForm(const QString &word)
{
    const QString capitals = UCase(word);
    if (StartsWithExact(word, u"GE"_s)) {
        // The noun endings end in t themselves, so they are asked for first: such a word is a noun.
        if (endsInOneOf(capitals, geNounEndings))
            return InitCapWord(word);
        if (capitals.endsWith(u'T') || capitals.endsWith("EN"_L1))
            return word;
        return std::nullopt;
    }
    if (StartsWithExact(word, u"Ge"_s))
        return capitals.endsWith(u'E') ? std::optional(word) : std::nullopt;
    if (capitals.endsWith("HAFTIG"_L1))
        return LCase(word);
    if (endsInOneOf(capitals, CapEndingList))
        return InitCapWord(word);
    if (capitals.endsWith("TST"_L1) || capitals.endsWith("DST"_L1))
        return QString(word).replace("st"_L1, "est"_L1);
    if (capitals.endsWith("TT"_L1))
        return std::nullopt;
    return word;
}

void Sweep::added(int row, const QString &word)
{
    const auto at = std::lower_bound(badRows_.begin(), badRows_.end(), row);
    for (auto behind = at; behind != badRows_.end(); ++behind)
        ++*behind;
    if (holdsBadClusterForSweep(UCase(word)))
        badRows_.insert(at, row);
}

int Sweep::run(WordStore &list)
{
    int removed = 0;
    int nextLooked = 0; // rows in front of it are not looked at any more in this sweep
    std::vector<int> passedOver;
    for (const int row : badRows_) {
        const int now = row - removed;
        if (now < nextLooked) {
            passedOver.push_back(now);
            continue;
        }
        list.removeAt(now);
        ++removed;
        nextLooked = now + 1;
    }
    badRows_ = std::move(passedOver);
    return removed;
}

/// The word of one draw, or the empty word where stem and suffix do not go together.
QString Generator::candidate()
{
    Morphemes parts = drawMorphemes(lists_, rnd_);
    if (holdsBadCluster(stretchOf(parts.Stem, parts.Suffix)))
        return {};
    parts.Suffix = expandSuffix(parts.Suffix, rnd_);
    return join(parts, initCapRule_);
}

/// What is tested is what is added: with its linked e a word may be a real one, or stand in the list.
bool Generator::tryWord()
{
    const std::optional<QString> form = acceptedForm(candidate());
    if (!form || tests_.ChkForDuplicates2(*form) || tests_.ChkForDuplicates3(*form) || Trim(*form).isEmpty())
        return false;
    sweep_.added(lists_.PseudoWordList.add(*form), *form);
    return true;
}

int Generator::sweep() { return sweep_.run(lists_.PseudoWordList); }

} // namespace nonsense
