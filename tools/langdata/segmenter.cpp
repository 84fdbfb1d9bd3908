// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "segmenter.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace langdata {
namespace {

constexpr int mostPrefixes = 3;

constexpr QStringView derivations[] = {
    u"ig",   u"lich",   u"los", u"sam", u"bar", u"haft", u"ung", u"heit",
    u"keit", u"schaft", u"nis", u"tum", u"tüm", u"erei", u"er",  u"end",
};

constexpr QStringView inflections[] = {
    u"",    u"e",    u"em",   u"en",   u"er",    u"ere", u"eren", u"erer", u"eres", u"es",   u"est",
    u"et",  u"ete",  u"eten", u"in",   u"innen", u"n",   u"s",    u"se",   u"sen",  u"ses",  u"st",
    u"ste", u"sten", u"ster", u"stes", u"t",     u"te",  u"ten",  u"ter",  u"tes",  u"test", u"tet",
};

} // namespace

Segmenter::Segmenter(const QStringList &prefixes, const QSet<QString> &stems, const QStringList &suffixes)
    : prefixes_(prefixes)
    , stems_(stems)
    , suffixes_(suffixes.begin(), suffixes.end())
{
    for (const QString &stem : stems_)
        longestStem_ = std::max(longestStem_, stem.size());
}

bool Segmenter::isEnding(QStringView text) const
{
    if (std::find(std::begin(inflections), std::end(inflections), text) != std::end(inflections))
        return true;
    return std::any_of(std::begin(derivations), std::end(derivations), [&](QStringView derivation) {
        return text.startsWith(derivation) && isEnding(text.mid(derivation.size()));
    });
}

void Segmenter::readAt(const QString &lower, qsizetype at, int prefixes, std::vector<Reading> &found) const
{
    const qsizetype longest = std::min(longestStem_, lower.size() - at);
    for (qsizetype length = 2; length <= longest; ++length) {
        const auto stem = stems_.constFind(lower.mid(at, length));
        if (stem == stems_.constEnd())
            continue;
        const QString rest = lower.mid(at + length);
        const bool oneTile = prefixes <= 1 && (rest.isEmpty() || suffixes_.contains(rest));
        if (oneTile || isEnding(rest))
            found.push_back({*stem, oneTile});
    }
    if (prefixes == mostPrefixes)
        return;
    for (const QString &prefix : prefixes_)
        if (QStringView(lower).mid(at).startsWith(prefix))
            readAt(lower, at + prefix.size(), prefixes + 1, found);
}

std::vector<Segmenter::Reading> Segmenter::readings(const QString &lower) const
{
    std::vector<Reading> found;
    readAt(lower, 0, 0, found);
    return found;
}

} // namespace langdata
