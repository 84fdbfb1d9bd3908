// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzz/targets.h"
#include "games/scores/score_list.h"

#include <cmath>

void fuzz::scores(const QByteArray &bytes)
{
    std::optional<ScoreList> list = ScoreList::parse(bytes);
    if (!list)
        return;
    const std::optional<ScoreList> again = ScoreList::parse(list->bytes());
    promise(again.has_value(), "a written list is read");
    for (int place = 1; place <= ScoreList::places; ++place) {
        promise(std::abs(list->score(place)) <= 1e9, "a score can be passed");
        promise(scoreText(list->score(place)) == scoreText(again->score(place)), "a score is kept");
        promise(list->name(place).size() <= ScoreList::longestName, "a name fits");
        promise(!list->name(place).isValidUtf16() || list->name(place) == again->name(place),
                "a name is kept");
    }
    const int place = list->insert(QString::fromUtf16(u"Best"), 1e9);
    promise(place == 1 && list->name(1) == QString::fromUtf16(u"Best"), "the best comes first");
}
