// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/paarlon/memory_scores.h"

#include "platform/settings_store.h"
#include "platform/text.h"

#include <algorithm>
#include <climits>

using namespace Qt::StringLiterals;

namespace {

const QString section = u"MemoryGame"_s;
const QString firstLeader = u"Wortel"_s;

QString listKey(const MemoryKind &kind) { return QString::fromUtf16(kind.label) + u"Top 10:"_s; }

int wholeNumber(const QString &text) { return static_cast<int>(std::clamp(Val(text), 0.0, double(INT_MAX))); }

} // namespace

QString MemoryScores::read(const char16_t *key, const QString &fallback) const
{
    return store_.GetSetting(section, QString::fromUtf16(key), fallback);
}

TopTen MemoryScores::topTen(const MemoryKind &kind) const
{
    return TopTen::fromText(store_.GetSetting(section, listKey(kind), QString::fromUtf16(TopTen::seed)));
}

void MemoryScores::saveTopTen(const MemoryKind &kind, const TopTen &list)
{
    store_.SaveSetting(section, listKey(kind), list.text());
}

void MemoryScores::reset(const MemoryKind *kind)
{
    QList<QPair<QString, QString>> values{
        {u"Score"_s, u"0"_s}, {u"Name"_s, firstLeader}, {u"Time"_s, u"0"_s}};
    for (const MemoryKind &each : memoryKinds)
        if (kind == nullptr || kind == &each)
            values.append({listKey(each), QString::fromUtf16(TopTen::seed)});
    store_.SaveSettings(section, values);
}

int MemoryScores::Score() const { return wholeNumber(read(u"Score", u"0"_s)); }

int MemoryScores::Time() const { return wholeNumber(read(u"Time", u"0"_s)); }

void MemoryScores::saveRecord(int clicks)
{
    store_.SaveSettings(section, {{u"Score"_s, QString::number(clicks)}, {u"Name"_s, QString()}});
}

int MemoryScores::visibleTime() const
{
    constexpr double usual = 2000;
    constexpr double longest = 65535;
    QString seconds = read(u"MorphemeVisibleTime", u"2"_s);
    const double wanted = Round(Val(seconds.replace(u',', u'.')) * 1000);
    return static_cast<int>(wanted >= 1 && wanted <= longest ? wanted : usual);
}

void MemoryScores::saveColours(const CardColours &colours)
{
    store_.SaveSettings(section, {{u"Current"_s, QString::number(colours.TurnedColor)},
                                  {u"BG"_s, QString::number(colours.FaceDownColor)},
                                  {u"Fore"_s, QString::number(colours.TextColor)},
                                  {u"Morpheme1"_s, QString::number(colours.SolvedColor)},
                                  {u"Morpheme2"_s, QString::number(colours.SolvedColor2)}});
}
