// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/reader/spoken_tile.h"

#include "board/tiles/tile_store.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<std::array<const char16_t *, 3>, 3> ninths{{
    {u"oben links", u"oben in der Mitte", u"oben rechts"},
    {u"links in der Mitte", u"in der Mitte", u"rechts in der Mitte"},
    {u"unten links", u"unten in der Mitte", u"unten rechts"},
}};

std::size_t third(int middle, int length)
{
    return static_cast<std::size_t>(std::clamp(middle * 3 / std::max(1, length), 0, 2));
}

} // namespace

QString spoken_tile::name(const cWortel &tile)
{
    const QString text = tileText(tile.txt).trimmed();
    const TileKind *kind = kindOfColour(tile.BGColor);
    return (text.isEmpty() ? u"leer"_s : text) + u", "_s +
           (kind == nullptr ? u"Baustein"_s : QString::fromUtf16(kind->name));
}

QString spoken_tile::place(const QRect &box, const QSize &picture)
{
    const QPoint middle = box.center();
    return QString::fromUtf16(
        ninths.at(third(middle.y(), picture.height())).at(third(middle.x(), picture.width())));
}
