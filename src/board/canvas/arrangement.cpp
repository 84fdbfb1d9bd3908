// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/canvas/arrangement.h"

#include "board/canvas/canvas.h"
#include "board/canvas/placement.h"
#include "board/canvas/rebuild.h"
#include "board/tiles/tile_sort.h"
#include "platform/clock.h"
#include "platform/ground.h"
#include "platform/options.h"
#include "platform/procedure.h"
#include "platform/text.h"
#include "platform/work.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr auto form = "frmMain";

constexpr int progressMaximum = 10; // the bar is a status line here: only its caption moves

bool isWortel(const cWortel &tile) { return tile.BGColor == colours::wortelBack; }
bool isAny(const cWortel &) { return true; }

int settingNumber(const Options &options, Setting id) { return CInt(options.number(id)); }

} // namespace

Arrangement::Arrangement(Ground &ground, Canvas &canvas, Placement &placement)
    : ground_(ground)
    , canvas_(canvas)
    , placement_(placement)
    , store_(canvas.store())
{}

// Sorting ------------------------------------------------------------------------------------------

void Arrangement::sortTiles(const char *procedure, What what, bool removeDuplicates)
{
    Procedure step{ground_.log, procedure, form};
    step([&] {
        TileList tiles = store_.takeAll();
        tile_sort::sortTexts(tiles, what == What::Wortel ? isWortel : isAny, removeDuplicates);
        store_.replaceAll(std::move(tiles));
    });
    rebuildBoard(ground_, canvas_, step, [](TilePointer &, TileList &) {});
}

void Arrangement::SortWortelAscending(bool removeDuplicates)
{
    sortTiles("SortWortelAscending", What::Wortel, removeDuplicates);
}

void Arrangement::SortMorphemeAscending(bool removeDuplicates)
{
    sortTiles("SortMorphemeAscending", What::Everything, removeDuplicates);
}

// Spreading ----------------------------------------------------------------------------------------

void Arrangement::SpreadAllMorpheme(bool sorted)
{
    Procedure step{ground_.log, "SpreadAllMorpheme", form};
    const int filter = store_.filter().selected();
    {
        Work work(ground_, {WorkPlan::Bar | WorkPlan::Cancel | WorkPlan::HidesModes, progressMaximum});
        const FrozenBoard frozen(canvas_.surface());
        step([&] { work.appear(); });
        TileList tiles = store_.copies();
        if (sorted)
            step([&] { tile_sort::sortTexts(tiles, isAny, true); });
        TileList laid;
        step([&] { spreadTiles(tiles, laid, work); });
        if (ground_.gate.isClosing())
            return;
        store_.replaceAll(std::move(laid));
        step([&] { store_.recount(); });
        step([&] { canvas_.CanvasRedrawAll(); });
    }
    step([&] { canvas_.RecallFilter(filter); });
}

void Arrangement::spreadTiles(const TileList &tiles, TileList &laid, Work &work)
{
    for (int kind = 0; kind < TileFilter::all; ++kind)
        store_.counters().set(kind, 0);
    const QString ending = u" ...Morpheme platziert ("_s + QString::number(tiles.size()) + u')';
    int i = 0;
    for (const auto &tile : tiles) {
        const TileKind *kind = kindOfColour(tile->BGColor);
        if (!kind)
            continue;
        if (placement_.MorphemeCollision(tile->txt, *kind, laid, work))
            break;
        store_.counters().add(kind->filterIndex, 1);
        work.tell(QString::number(++i) + ending);
        if (!work.goesOn())
            break;
    }
}

void Arrangement::SpreadMorpheme(Colour colour)
{
    Procedure step{ground_.log, "SpreadMorpheme", form};
    Work work(ground_);
    step([&] { store_.counters().set(0, 0); });
    rebuildBoard(ground_, canvas_, step, [&](TilePointer &tile, TileList &laid) {
        if (tile->BGColor != colour)
            return;
        placement_.NoWortelCollision2(1, std::exchange(tile, nullptr)->txt, laid, work);
        store_.counters().add(0, 1);
    });
}

// Lining up ----------------------------------------------------------------------------------------

void Arrangement::LineUpWorteles(bool sort, bool removeDuplicates)
{
    Procedure step{ground_.log, "LineUpWorteles", form};
    if (sort)
        step([&] { SortWortelAscending(removeDuplicates); });
    step([&] { store_.counters().set(0, 0); });
    int i = 0;
    rebuildBoard(ground_, canvas_, step, [&](TilePointer &tile, TileList &rebuilt) {
        if (!isWortel(*tile))
            return;
        GetLineUpPos(i, std::exchange(tile, nullptr)->txt, rebuilt);
        store_.counters().add(0, 1);
        ++i;
    });
}

int Arrangement::lineUpNumber(const char *procedure, int (*number)(int, int, int), int i, int space) const
{
    Procedure step{ground_.log, procedure, form, Procedure::Silent};
    int result = 0;
    step([&] { result = number(i, settingNumber(ground_.options, Setting::ColumnsOnLineUp), space); });
    return result;
}

void Arrangement::GetLineUpPos(int i, const QString &text, TileList &rebuilt)
{
    Procedure step{ground_.log, "GetLineUpPos", form, Procedure::Silent};
    int across = 0;
    int down = 0;
    int start = 0;
    step([&] { across = settingNumber(ground_.options, Setting::HorizSpaceOnLineUp); });
    step([&] { down = settingNumber(ground_.options, Setting::VertSpaceOnLineUp); });
    step([&] { start = settingNumber(ground_.options, Setting::StartPosTopOnLineUp); });
    const int x = lineUpNumber("GetLeft", places::GetLeft, i, across);
    Int16 y = lineUpNumber("GetTop", places::GetTop, i, down);
    step([&] { y += start; });
    step([&] { rebuilt.push_back(store_.makeTile(x, y, text, wortelKind)); });
}
