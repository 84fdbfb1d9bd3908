// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/tiles/places.h"

#include "platform/rnd.h"

#include <QString>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace places {

bool checkOverlapInList(const TileList &tiles, int x, int y, int right, int bottom)
{
    return std::any_of(tiles.cbegin(), tiles.cend(), [=](const auto &tile) {
        // A tile read from a file may lie anywhere in 32 bits: nothing is added to its place.
        const int left = tile->xLeft();
        const int top = tile->yTop();
        return x - (boxWidth + 1) < left && left < right + 1 && y - (boxHeight + 1) < top && top < bottom + 1;
    });
}

Place randomPlace(Rnd &rnd, const Draw &draw, const BoardMeasures &window)
{
    const int x = rnd.absInt(window.ScaleWidth(), -draw.offsetX);
    const int y = rnd.absInt(window.ScaleHeight(), -draw.offsetY);
    return {x, y + draw.down};
}

Place onBoard(Place place, const BoardMeasures &window, int width)
{
    return {std::min(place.x, std::max(0, window.ScaleWidth() - width - 1)),
            std::min(place.y, std::max(0, window.BandTop() - boxHeight - 1))};
}

int probeWidth(Colour kind, const QString &text)
{
    if (kind == colours::prefixBack && text.size() <= 2)
        return 30;
    if (kind == colours::suffixBack && text.size() <= 2)
        return 29;
    if (kind == colours::wortelBack && text.size() >= 6)
        return 39;
    return 37;
}

int GetLeft(int i, int columns, int horizontalSpace)
{
    if (columns == 0)
        throw RuntimeError::of(RuntimeError::DivisionByZero);
    return Int16(static_cast<long long>(i % columns) * horizontalSpace);
}

int GetTop(int i, int columns, int verticalSpace)
{
    if (columns == 0)
        throw RuntimeError::of(RuntimeError::DivisionByZero);
    return Int16(static_cast<long long>(i / columns) * verticalSpace);
}

QString limitQuestion(bool triedAgain, int placed, int limit)
{
    const QString number = QString::number(placed);
    const QString start = triedAgain ? u"Ich habe noch einmal probiert.\n\nIch habe jetzt "_s + number
                                     : u"Ich habe "_s + number;
    return start +
           u" Morpheme ohne Überdeckung platziert.\n\n"
           "Es ist schwierig, ausreichend freien Platz für das Anordnen der übrigen Morpheme zu finden.\n\n"
           "Soll ich noch einmal versuchen, die restlichen Morpheme ("_s +
           QString::number(limit / 1000 - placed) + u") anzuordnen?"_s;
}

} // namespace places
