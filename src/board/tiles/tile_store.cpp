// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/tiles/tile_store.h"

#include "board/tiles/places.h"
#include "platform/clock.h"
#include "platform/ground.h"
#include "platform/procedure.h"
#include "platform/text.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

using namespace Qt::StringLiterals;

namespace {
constexpr int copyOffset = 20;  // one copy, to the right of its original
constexpr int copyStep = 42;    // several copies, left edge to left edge
constexpr int rightMargin = 30; // copies stop that far from the window's edge
} // namespace

// TileCounters -------------------------------------------------------------------------------------

int TileCounters::value(int index) const { return CLng(Val(caption(index))); }

void TileCounters::set(int index, int count) { setCaption(index, QString::number(count)); }

void TileCounters::add(int index, int delta, bool absolute)
{
    const int sum = value(index) + delta;
    set(index, absolute ? std::abs(sum) : sum);
}

Int16 TileCounters::sum() const
{
    Int16 total(value(0));
    total += value(1);
    total += value(2);
    return total;
}

void TileCounters::updateTotal() { set(TileFilter::all, sum()); }

// TileFilter ---------------------------------------------------------------------------------------

bool TileFilter::shows(Colour back) const
{
    const int index = selected();
    if (index < 0 || index >= all)
        return true;
    const TileKind *kind = kindOfColour(back);
    return kind && kind->filterIndex == index;
}

// TileStore ----------------------------------------------------------------------------------------

QString tileText(const QString &text)
{
    if (text.size() > longestTileText)
        return tileText(text.left(longestTileText));
    const auto isControl = [](QChar character) {
        return character.unicode() < 0x20 || character == QChar::LineSeparator ||
               character == QChar::ParagraphSeparator;
    };
    if (std::none_of(text.cbegin(), text.cend(), isControl))
        return text;
    QString line = text;
    std::replace_if(line.begin(), line.end(), isControl, u' ');
    return line;
}

TileStore::TileStore(Ground &ground, TileCounters &counters, TileFilter &filter, TileSurface &surface,
                     BoardMeasures &measures)
    : ground_(ground)
    , counters_(counters)
    , filter_(filter)
    , surface_(surface)
    , measures_(measures)
{}

int TileStore::countOf(Colour back) const
{
    return static_cast<int>(std::count_if(tiles_.cbegin(), tiles_.cend(),
                                          [back](const auto &tile) { return tile->BGColor == back; }));
}

void TileStore::append(std::unique_ptr<cWortel> tile) { tiles_.push_back(std::move(tile)); }

TileList TileStore::takeAll()
{
    current_ = nullptr;
    return std::exchange(tiles_, {});
}

void TileStore::appendAll(TileList tiles)
{
    for (auto &tile : tiles) {
        if (filter_.shows(tile->BGColor))
            tile->Draw(surface_);
        append(std::move(tile));
    }
}

void TileStore::replaceAll(TileList tiles)
{
    current_ = nullptr;
    tiles_ = std::move(tiles);
}

TileList TileStore::copies() const
{
    TileList result;
    result.reserve(tiles_.size());
    for (const auto &tile : tiles_)
        result.push_back(std::make_unique<cWortel>(*tile));
    for (const auto &copy : result)
        copy->Selected = false;
    return result;
}

void TileStore::removeAt(int index)
{
    if (index < 0 || index >= count())
        throw RuntimeError::of(RuntimeError::SubscriptOutOfRange);
    const auto place = tiles_.begin() + index;
    forget(place->get());
    tiles_.erase(place);
}

void TileStore::forget(const cWortel *tile)
{
    if (current_ == tile)
        current_ = nullptr;
}

std::vector<const cWortel *> TileStore::shown() const
{
    std::vector<const cWortel *> found;
    for (const auto &tile : tiles_)
        if (filter_.shows(tile->BGColor))
            found.push_back(tile.get());
    return found;
}

int TileStore::indexAt(int x, int y) const
{
    const auto found =
        std::find_if(tiles_.cbegin(), tiles_.cend(), [x, y](const auto &tile) { return tile->Inside(x, y); });
    return found == tiles_.cend() ? -1 : static_cast<int>(found - tiles_.cbegin());
}

int TileStore::extentOf(const QString &text) const
{
    return measures_.textWidth(tileText(text)) + cWortel::textMargin;
}

std::unique_ptr<cWortel> TileStore::makeTile(Int16 x, Int16 y, const QString &text, Colour back,
                                             Colour textColour) const
{
    auto tile = std::make_unique<cWortel>();
    tile->setXLeft(x);
    tile->setYTop(y);
    tile->txt = text;
    tile->BGColor = back;
    tile->TxtColor = textColour;
    tile->setExtent(extentOf(text));
    return tile;
}

void TileStore::recount()
{
    for (const TileKind &kind : tileKinds)
        counters_.set(kind.filterIndex, countOf(kind.back));
    counters_.updateTotal();
}

void TileStore::CanvasDrawWortel(Int16 x, Int16 y, const QString &text, Colour back, Colour textColour)
{
    auto tile = makeTile(x, y, text, back, textColour);
    if (filter_.shows(back))
        tile->Draw(surface_);
    append(std::move(tile));
}

Colour TileStore::TypeOfSelectedWortel(int x, int y)
{
    Procedure step{ground_.log, "TypeOfSelectedWortel", "frmMain"};
    for (const auto &tile : tiles_)
        if (tile->Inside(x, y) && filter_.shows(tile->BGColor)) {
            current_ = tile.get();
            return tile->BGColor;
        }
    return colours::board;
}

void TileStore::EraseSpecifiedWortel(const QString &text)
{
    Procedure step{ground_.log, "EraseSpecifiedWortel", "frmMain"};
    const auto found = std::find_if(tiles_.cbegin(), tiles_.cend(),
                                    [&text](const auto &tile) { return equalsIgnoreCase(tile->txt, text); });
    if (found != tiles_.cend()) {
        step([&] { removeAt(static_cast<int>(found - tiles_.cbegin())); });
        step([&] { counters_.add(0, -1, true); });
        step([&] { counters_.updateTotal(); });
    }
    step([&] { ground_.pump.yield(); });
}

void TileStore::DuplicateObject(Colour kind, const QString &text, int x, int y)
{
    Procedure step{ground_.log, "DuplicateObject", "frmMain"};
    const TileKind *row = kindOfColour(kind);
    if (!row)
        return;
    step([&] {
        const places::Place place = places::onBoard({x + copyOffset, y}, measures_, extentOf(text));
        CanvasDrawWortel(place.x, place.y, text, row->back, row->text);
        counters_.add(row->filterIndex, 1);
    });
}

void TileStore::DuplicateObject2(Colour kind, const QString &text, int count, int x, int y)
{
    Procedure step{ground_.log, "DuplicateObject2", "frmMain"};
    const TileKind *row = kindOfColour(kind);
    if (!row)
        return;
    step([&] {
        const int edge = measures_.ScaleWidth() - rightMargin;
        for (int i = 1; i <= count; ++i) {
            const int left = x + copyStep * i;
            if (edge < left)
                break;
            const int top = places::onBoard({left, y}, measures_, 0).y;
            CanvasDrawWortel(left, top, text, row->back, row->text);
            counters_.add(row->filterIndex, 1);
            ground_.pump.yield();
        }
    });
}
