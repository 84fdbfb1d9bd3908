// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/paarlon/top_ten.h"

#include "language/word_tests.h"
#include "platform/text.h"

#include <algorithm>
#include <climits>

using namespace Qt::StringLiterals;

namespace {

constexpr QChar betweenRecords = u'~';
constexpr QChar behindScore = u',';

QString textOf(const TopTen::Record &record)
{
    return u"%1"_s.arg(record.score, 3) + behindScore + record.name;
}

/// The pieces that are records, in the form in which they are sorted.
QStringList recordsIn(const QString &stored)
{
    QStringList records;
    for (const QString &piece : stored.split(betweenRecords)) {
        const qsizetype comma = piece.indexOf(behindScore);
        const double score = comma < 0 ? 0 : Val(piece.first(comma));
        if (score >= 1 && score <= INT_MAX)
            records << textOf({static_cast<int>(score), piece.mid(comma + 1)});
    }
    return records;
}

} // namespace

TopTen TopTen::fromText(const QString &stored)
{
    QStringList records = recordsIn(stored);
    InsertSortStrings(records, true, false);
    if (records.size() < places) {
        QStringList fill = recordsIn(QString::fromUtf16(seed));
        InsertSortStrings(fill, true, false);
        records += fill.last(places - records.size());
        InsertSortStrings(records, true, false);
    }
    TopTen list;
    for (const QString &record : records.first(places))
        list.records_.append({static_cast<int>(Val(record)), record.section(behindScore, 1)});
    return list;
}

QString TopTen::text() const
{
    QStringList all;
    for (const Record &record : records_)
        all << textOf(record);
    return all.join(betweenRecords);
}

std::optional<int> TopTen::placeOf(int clicks) const
{
    const auto beaten = std::find_if(records_.begin(), records_.end(),
                                     [clicks](const Record &record) { return record.score > clicks; });
    if (beaten == records_.end())
        return std::nullopt;
    return static_cast<int>(beaten - records_.begin());
}

void TopTen::enter(int place, int clicks, const QString &name)
{
    // The sign between the records would make two of one.
    QString kept = Trim(QString(name).replace(betweenRecords, u'-'));
    if (kept.isEmpty())
        kept = records_.at(place).name;
    records_.insert(place, {clicks, kept});
    records_.removeLast();
}
