// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/canvas/bulk_tiles.h"

#include "board/canvas/canvas.h"
#include "board/canvas/placement.h"
#include "board/canvas/rebuild.h"
#include "board/tiles/affix_homes.h"
#include "board/tiles/random_array.h"
#include "platform/boxes.h"
#include "platform/clock.h"
#include "platform/ground.h"
#include "platform/options.h"
#include "platform/procedure.h"
#include "platform/rnd.h"
#include "platform/sound.h"
#include "platform/text.h"
#include "platform/word_lists.h"
#include "widgets/dealing_tools.h"
#include "widgets/guards.h"
#include "widgets/main_controls.h"
#include "widgets/press_button.h"

#include <QLineEdit>

#include <algorithm>
#include <cmath>
#include <numeric>

using namespace Qt::StringLiterals;

namespace {

constexpr auto form = "frmMain";
constexpr int shuffleSound = 109;
constexpr int largestCount = 32767;

constexpr const TileKind &wortelKind = tileKinds[0];
constexpr const TileKind &prefixKind = tileKinds[1];
constexpr const TileKind &suffixKind = tileKinds[2];

std::vector<int> countingFromOne(std::size_t count)
{
    std::vector<int> numbers(count);
    std::iota(numbers.begin(), numbers.end(), 1);
    return numbers;
}

/// The number that the text is, if it is one.
std::optional<double> typedNumber(const QString &text)
{
    try {
        return CDbl(text);
    } catch (const RuntimeError &) {
        return std::nullopt;
    }
}

} // namespace

BulkTiles::BulkTiles(Ground &ground, const MainControls &controls, const WordLists &lists,
                     const AffixHomes &homes, Canvas &canvas, Placement &placement)
    : ground_(ground)
    , controls_(controls)
    , lists_(lists)
    , homes_(homes)
    , canvas_(canvas)
    , placement_(placement)
    , store_(canvas.store())
{}

std::optional<int> BulkTiles::countInText1()
{
    const std::optional<double> number = typedNumber(controls_.Text1->text());
    const double count = Round(std::fabs(number.value_or(0)));
    if (number && count <= largestCount)
        return static_cast<int>(count);
    ground_.boxes.ShowInfoBox(
        number ? u"Diese Anzahl ist zu groß. Es dürfen höchstens %1 Wortel sein."_s.arg(largestCount)
               : u"Bitte schreibe eine Zahl in das Feld \"Anzahl Wortel\""_s,
        u"INFO"_s, u"Wortel-Meister"_s);
    return std::nullopt;
}

void BulkTiles::yieldIfInput()
{
    if (ground_.pump.inputWaiting())
        ground_.pump.yield();
}

QString BulkTiles::randomStem()
{
    ground_.rnd.Randomize();
    return lists_.WortelList.at(ground_.rnd.absInt(lists_.WortelList.count()));
}

void BulkTiles::drawWortel(const QString &text, int x, int y)
{
    store_.CanvasDrawWortel(x, y, text, wortelKind.back, wortelKind.text);
}

// Filling ------------------------------------------------------------------------------------------

void BulkTiles::AddRandomWortel(int count)
{
    Procedure step{ground_.log, "AddRandomWortel", form};
    const int filter = store_.filter().selected();
    step([&] {
        const CanvasSurface::Batch batch(canvas_.surface());
        const BoardMeasures &measures = store_.measures();
        for (int i = 1; i <= count; ++i) {
            const QString stem = randomStem();
            ground_.rnd.Randomize();
            const auto [x, y] =
                places::addedWortel(ground_.rnd, measures.ScaleWidth(), measures.ScaleHeight());
            drawWortel(stem, x, y);
            store_.counters().add(0, 1);
        }
    });
    step([&] { canvas_.RecallFilter(filter); });
}

void BulkTiles::Refill()
{
    Procedure step{ground_.log, "Refill", form};
    const bool wholeList = controls_.Check1->isChecked();
    const std::optional<int> wanted =
        wholeList ? std::optional<int>(lists_.WortelList.count()) : countInText1();
    if (!wanted)
        return;
    step([&] { store_.ClearCanvas(); });
    const int filter = store_.filter().selected();
    {
        const FrozenBoard frozen(canvas_.surface());
        if (typedNumber(controls_.Text1->text()) != 0.0) {
            step([&] { store_.counters().set(0, 0); });
            step([&] {
                if (ground_.options.isOn(Setting::NoOverlapOnStart))
                    placement_.PlaceWortelFree(*wanted);
                else
                    refillWortel(*wanted, wholeList);
            });
            step([&] { drawAffixRows(); });
        } else {
            step([&] { store_.ClearCanvas(); });
            for (const TileKind &kind : tileKinds)
                step([&] { store_.counters().set(kind.filterIndex, 0); });
        }
        step([&] { selectTwice(filter); });
    }
    step([&] { store_.counters().set(0, *wanted); });
    step([&] { store_.counters().updateTotal(); });
}

void BulkTiles::refillWortel(int n, bool inListOrder)
{
    const BoardMeasures &measures = store_.measures();
    int row = 0;
    while (store_.count() < n) {
        ground_.rnd.Randomize();
        const auto [x, y] =
            places::refilledWortel(ground_.rnd, measures.ScaleWidth(), measures.ScaleHeight());
        drawWortel(inListOrder ? lists_.WortelList.at(row++) : randomStem(), x, y);
        store_.counters().set(0, n);
        yieldIfInput();
    }
}

void BulkTiles::RefillWithSpecNum(int n)
{
    Procedure step{ground_.log, "RefillWithSpecNum", form};
    const int filter = store_.filter().selected();
    if (n < 0) {
        step([&] { canvas_.RecallFilter(filter); });
        return;
    }
    step([&] { store_.ClearCanvas(); });
    {
        const FrozenBoard frozen(canvas_.surface());
        if (n > 0) {
            step([&] {
                const BoardMeasures &measures = store_.measures();
                while (store_.count() < n) {
                    ground_.rnd.Randomize();
                    const auto [x, y] =
                        places::addedWortel(ground_.rnd, measures.ScaleWidth(), measures.ScaleHeight());
                    drawWortel(randomStem(), x, y);
                    yieldIfInput();
                }
            });
            step([&] { drawAffixRows(); });
        } else {
            for (const TileKind &kind : tileKinds)
                step([&] { store_.counters().set(kind.filterIndex, 0); });
        }
        step([&] { selectTwice(filter); });
    }
    step([&] { store_.counters().set(0, n); });
    step([&] { store_.counters().updateTotal(); });
}

void BulkTiles::drawAffixRows()
{
    Procedure step{ground_.log, "drawAffixRows", form, Procedure::Silent};
    int copies = 0;
    step([&] {
        const Options &options = ground_.options;
        if (options.isOn(Setting::FillAffix) && !options.text(Setting::NumAffixToFill).isEmpty())
            copies = std::max(0, CInt(options.number(Setting::NumAffixToFill)));
    });
    const auto drawRow = [&](const std::vector<AffixHome> &homes, const TileKind &kind) {
        for (const AffixHome &home : homes) {
            for (int copy = 0; copy <= copies; ++copy)
                store_.CanvasDrawWortel(home.x, home.y, home.text, kind.back, kind.text);
            yieldIfInput();
        }
    };
    // The counters tell the whole lists, though only the first entries have a home: the rows are made so.
    const auto count = [&](const WordStore &list, const TileKind &kind) {
        store_.counters().set(kind.filterIndex, Int16(static_cast<long long>(list.count()) * (1 + copies)));
    };
    step([&] { drawRow(homes_.prefixes, prefixKind); });
    step([&] { count(lists_.PrefixList, prefixKind); });
    step([&] { drawRow(homes_.suffixes, suffixKind); });
    step([&] { count(lists_.SuffixList, suffixKind); });
}

void BulkTiles::selectTwice(int filter)
{
    store_.filter().select(TileFilter::all);
    store_.filter().select(filter);
}

void BulkTiles::Check2_LeftPress()
{
    Procedure step{ground_.log, "Check2_MouseDown", form};
    const DealingToolsRest rest(controls_);
    const Hourglass hourglass;
    step([&] { ground_.pump.yield(); });
    if (ground_.options.isOn(Setting::SoundOnActions))
        step([&] { ground_.sound.PlayResourceSound(shuffleSound); });
    step([&] { Refill(); });
    step([&] { ground_.pump.yield(); });
    step([&] { emit commitWanted(); });
    step([&] { ground_.pump.yield(); });
}

// Changing texts -----------------------------------------------------------------------------------

void BulkTiles::ReplaceAllWortel()
{
    Procedure step{ground_.log, "ReplaceAllWortel", form};
    rebuildBoard(ground_, canvas_, step, [&](TilePointer &tile) {
        if (tile->BGColor == wortelKind.back)
            tile->txt = randomStem();
    });
}

void BulkTiles::ShuffleAllWortel()
{
    shuffleKind("ShuffleAllWortel", wortelKind, ground_.options.isOn(Setting::LCaseOnShuffle));
}

// Affixes are written in lower case whatever the setting says: a suffix never begins a word.
void BulkTiles::ShuffleAllPrefix() { shuffleKind("ShuffleAllPrefix", prefixKind, true); }
void BulkTiles::ShuffleAllSuffix() { shuffleKind("ShuffleAllSuffix", suffixKind, true); }

void BulkTiles::shuffleKind(const char *procedure, const TileKind &kind, bool lowerCase)
{
    Procedure step{ground_.log, procedure, form};
    QStringList texts;
    for (const auto &tile : store_.tiles())
        if (tile->BGColor == kind.back)
            texts.append(tile->txt);
    if (texts.isEmpty())
        return;
    std::vector<int> out;
    step([&] { RandomArray(countingFromOne(static_cast<std::size_t>(texts.size())), out, ground_.rnd); });
    std::size_t k = 0;
    rebuildBoard(ground_, canvas_, step, [&](TilePointer &tile) {
        if (tile->BGColor != kind.back || k >= out.size())
            return;
        const QString text = texts.at(out[k++] - 1);
        tile->txt = lowerCase ? LCase(text) : text;
        tile->TxtColor = kind.text;
        tile->Selected = false;
    });
}

void BulkTiles::ShuffleAllMorpheme()
{
    Procedure step{ground_.log, "ShuffleAllMorpheme", form};
    for (const TileKind &kind : tileKinds)
        step([&] {
            std::vector<cWortel *> tiles;
            QStringList texts;
            for (const auto &tile : store_.tiles())
                if (tile->BGColor == kind.back) {
                    tiles.push_back(tile.get());
                    texts.append(tile->txt);
                }
            std::vector<int> out;
            RandomArray(countingFromOne(tiles.size()), out, ground_.rnd);
            for (std::size_t k = 0; k < out.size(); ++k)
                tiles[k]->txt = texts.at(out[k] - 1);
        });
    rebuildBoard(ground_, canvas_, step, [](TilePointer &) {});
}

void BulkTiles::InitCapAffix(Colour colour)
{
    Procedure step{ground_.log, "InitCapAffix", form};
    rebuildBoard(ground_, canvas_, step, [&](TilePointer &tile) {
        if (tile->BGColor != colour)
            return;
        const Int16 x(tile->xLeft());
        const Int16 y(tile->yTop());
        const TilePointer old = std::move(tile);
        const TileKind *kind = kindOfColour(colour);
        if (kind && kind->filterIndex != suffixKind.filterIndex)
            store_.MyGetWortel(x, y, InitCapWord(old->txt), kind->back, kind->text);
    });
}
