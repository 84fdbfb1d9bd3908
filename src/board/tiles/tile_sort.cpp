// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/tiles/tile_sort.h"

#include "platform/text.h"

#include <QSet>

#include <algorithm>

namespace tile_sort {

QStringList sorted(QStringList texts)
{
    std::stable_sort(texts.begin(), texts.end());
    return texts;
}

void sortTexts(TileList &tiles, bool (*affected)(const cWortel &), bool removeDuplicates)
{
    QStringList texts;
    for (const auto &tile : tiles)
        if (affected(*tile))
            texts.append(tile->txt);
    texts = sorted(std::move(texts));

    QSet<QString> seen;
    TileList kept;
    kept.reserve(tiles.size());
    qsizetype next = 0;
    for (auto &tile : tiles) {
        if (affected(*tile)) {
            tile->txt = texts.at(next++);
            if (removeDuplicates) {
                const QString key = UCase(tile->txt);
                if (seen.contains(key))
                    continue;
                seen.insert(key);
            }
        }
        kept.push_back(std::move(tile));
    }
    tiles = std::move(kept);
}

} // namespace tile_sort
