// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/scores/score_list.h"

#include "platform/text.h"
#include "platform/text_encoding.h"

#include <QStringList>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

QStringList linesOf(const QByteArray &bytes)
{
    QString text = decodeText(bytes);
    text.remove(QChar(u'\0'));
    text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
    if (text.endsWith(u'\n'))
        text.chop(1);
    return text.isEmpty() ? QStringList() : text.split(u'\n');
}

/// A number that no game can give could never be passed.
double countedScore(const QString &text)
{
    constexpr double beyondAllGames = 1e9;
    const double score = Val(text);
    return std::abs(score) < beyondAllGames ? score : 0;
}

} // namespace

QString scoreText(double score) { return QString::number(score, 'g', 15); }

QString ScoreList::nameFor(const QString &typed)
{
    QString name = typed;
    for (QChar &character : name)
        if (character == u':' || !character.isPrint())
            character = character.isSurrogate() ? character : QChar(u' ');
    name = name.simplified();
    if (name.size() > longestName)
        name.truncate(name.at(longestName - 1).isHighSurrogate() ? longestName - 1 : longestName);
    return name.isEmpty() ? u"Sieger"_s : name;
}

ScoreList ScoreList::initial()
{
    ScoreList list;
    for (int place = 1; place <= places; ++place) {
        list.Names_[index(place)] = u"Wortel"_s;
        list.Scores_[index(place)] = places + 1 - place;
    }
    return list;
}

std::optional<ScoreList> ScoreList::parse(const QByteArray &bytes)
{
    const QStringList lines = linesOf(bytes);
    if (lines.size() < places)
        return std::nullopt;
    ScoreList list;
    for (int place = 1; place <= places; ++place) {
        const QString &line = lines.at(place - 1);
        const qsizetype end = line.indexOf(u':');
        list.Names_[index(place)] = line.left(std::max<qsizetype>(0, end)).left(longestName);
        list.Scores_[index(place)] = countedScore(line.mid(end + 1));
    }
    return list;
}

QByteArray ScoreList::bytes() const
{
    QString text;
    for (int place = 1; place <= places; ++place)
        text += name(place) + u':' + scoreText(score(place)) + u"\r\n"_s;
    return encodeText(text);
}

int ScoreList::placeOf(double score) const
{
    for (int place = 1; place <= places; ++place)
        if (score >= this->score(place))
            return place;
    return 0;
}

int ScoreList::insert(const QString &name, double score)
{
    const int place = placeOf(score);
    if (place == 0)
        return 0;
    std::move_backward(Names_.begin() + place - 1, Names_.end() - 1, Names_.end());
    std::move_backward(Scores_.begin() + place - 1, Scores_.end() - 1, Scores_.end());
    Names_[index(place)] = name;
    Scores_[index(place)] = score;
    return place;
}
