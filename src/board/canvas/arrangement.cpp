// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/canvas/arrangement.h"

#include "board/canvas/canvas.h"
#include "board/canvas/placement.h"
#include "board/canvas/rebuild.h"
#include "board/tiles/tile_sort.h"
#include "platform/clock.h"
#include "platform/ground.h"
#include "platform/modes.h"
#include "platform/options.h"
#include "platform/procedure.h"
#include "platform/text.h"
#include "widgets/click_label.h"
#include "widgets/guards.h"
#include "widgets/main_controls.h"
#include "widgets/preparing.h"
#include "widgets/press_button.h"
#include "widgets/progress_bar.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto form = "frmMain";

bool isWortel(const cWortel &tile) { return tile.BGColor == colours::wortelBack; }
bool isAny(const cWortel &) { return true; }

int settingNumber(const Options &options, Setting id) { return CInt(options.number(id)); }

/// What the controls show while all tiles are placed anew: a status line and the "X", with the tools at rest.
class PlacingSheet
{
public:
    explicit PlacingSheet(const MainControls &controls)
        : controls_(controls)
    {
        controls_.Label4->show();
        ToggleButtonsOnPreparing(controls_, false);
        controls_.Check3->hide();
        controls_.Check4->hide();
    }
    ~PlacingSheet()
    {
        controls_.Label4->hide();
        ToggleButtonsOnPreparing(controls_, true);
        controls_.Check3->show();
        controls_.Check4->show();
        controls_.GameProgress->resetAndHide();
    }
    PlacingSheet(const PlacingSheet &) = delete;
    PlacingSheet &operator=(const PlacingSheet &) = delete;

private:
    const MainControls &controls_;
};

} // namespace

Arrangement::Arrangement(Ground &ground, const MainControls &controls, Modes &modes, Canvas &canvas,
                         Placement &placement)
    : ground_(ground)
    , controls_(controls)
    , modes_(modes)
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
        for (auto &tile : tiles)
            store_.append(std::move(tile));
    });
    rebuildBoard(ground_, canvas_, step, [](TilePointer &) {});
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
    if (modes_.PlacingBusy)
        return; // a second placement must not start: its tiles would find no place
    const Hourglass hourglass;
    const int filter = store_.filter().selected();
    step([&] {
        controls_.GameProgress->setMaximum(10);
        controls_.GameProgress->setValue(0);
        controls_.GameProgress->setCaption(u"Bitte warten..."_s);
        controls_.GameProgress->show();
        ground_.pump.yield();
    });
    if (sorted)
        step([&] { SortMorphemeAscending(true); });
    {
        const PlacingSheet sheet(controls_);
        const FrozenBoard frozen(canvas_.surface());
        step([&] { spreadTiles(); });
        step([&] { ground_.pump.yield(); });
        step([&] { canvas_.CanvasRedrawAll(); });
    }
    modes_.StopPlacing = false; // a pressed "X" must not outlive the placement it was meant for
    step([&] { canvas_.RecallFilter(filter); });
    step([&] { ground_.pump.yield(); });
}

void Arrangement::spreadTiles()
{
    const TileList scratch = store_.takeAll();
    for (int kind = 0; kind < TileFilter::all; ++kind)
        store_.counters().set(kind, 0);
    modes_.StopPlacing = false;
    const QString ending = u" ...Morpheme platziert ("_s + QString::number(scratch.size()) + u')';
    int i = 0;
    for (const auto &tile : scratch) {
        const TileKind *kind = kindOfColour(tile->BGColor);
        if (!kind)
            continue;
        if (modes_.StopPlacing || placement_.MorphemeCollision(1, tile->txt, kind->back, kind->text))
            break;
        store_.counters().add(kind->filterIndex, 1);
        controls_.GameProgress->setCaption(QString::number(++i) + ending);
        if (ground_.pump.inputWaiting())
            ground_.pump.yield();
    }
}

void Arrangement::SpreadMorpheme(Colour colour)
{
    Procedure step{ground_.log, "SpreadMorpheme", form};
    if (modes_.PlacingBusy)
        return;
    step([&] { store_.counters().set(0, 0); });
    rebuildBoard(ground_, canvas_, step, [&](TilePointer &tile) {
        if (tile->BGColor != colour)
            return;
        const QString text = tile->txt;
        tile.reset();
        placement_.NoWortelCollision2(1, text);
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
    rebuildBoard(ground_, canvas_, step, [&](TilePointer &tile) {
        if (!isWortel(*tile))
            return;
        const QString text = tile->txt;
        tile.reset();
        GetLineUpPos(i, text);
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

void Arrangement::GetLineUpPos(int i, const QString &text)
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
    step([&] { store_.CanvasDrawWortel(x, y, text, colours::wortelBack, colours::wortelText); });
}
