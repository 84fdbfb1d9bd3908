// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/paarlon/morpheme_pick.h"

#include "platform/rnd.h"
#include "platform/word_store.h"

#include <vector>

void morphemes::addNumberedTwins(WordStore &list, const QStringList &lines)
{
    int number = 0;
    for (const QString &line : lines) {
        if (list.count() >= leastEntries)
            return;
        if (list.contains(line))
            list.add(line + QString::number(number += 2));
    }
}

bool morphemes::canPick(const WordStore &list) { return list.count() >= leastEntries; }

QStringList morphemes::pick(const WordStore &list, Rnd &rnd)
{
    Q_ASSERT(canPick(list));
    std::vector<bool> marked(static_cast<std::size_t>(list.count()));
    for (int picked = 0; picked < perGame; ++picked) {
        std::size_t row = 0;
        do
            row = static_cast<std::size_t>(rnd.absInt(list.count(), -1));
        while (marked[row]);
        marked[row] = true;
    }
    QStringList game;
    for (int row = 0; row < list.count(); ++row)
        if (marked[static_cast<std::size_t>(row)])
            game.append(list.at(row));
    return game;
}

morphemes::Print morphemes::printOf(const QString &morpheme)
{
    Print print{morpheme, {}};
    if (!morpheme.isEmpty() && morpheme.back() >= u'1' && morpheme.back() <= u'9') {
        print.mark = morpheme.back();
        print.text.remove(print.mark);
    }
    return print;
}
