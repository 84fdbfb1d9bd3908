// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/canvas/bulk_tiles.h"

#include "board/canvas/canvas.h"
#include "board/canvas/placement.h"
#include "board/canvas/rebuild.h"
#include "board/tiles/affix_homes.h"
#include "board/tiles/board_news.h"
#include "board/tiles/random_array.h"
#include "platform/boxes.h"
#include "platform/clock.h"
#include "platform/ground.h"
#include "platform/note_texts.h"
#include "platform/notes.h"
#include "platform/options.h"
#include "platform/procedure.h"
#include "platform/product.h"
#include "platform/rnd.h"
#include "platform/sounds.h"
#include "platform/text.h"
#include "platform/word_lists.h"
#include "platform/work.h"
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
constexpr int largestCount = 32767;

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
                     const AffixHomes &homes, Canvas &canvas, Placement &placement, BoardNews &news)
    : ground_(ground)
    , controls_(controls)
    , lists_(lists)
    , homes_(homes)
    , canvas_(canvas)
    , placement_(placement)
    , news_(news)
    , store_(canvas.store())
{}

std::optional<int> BulkTiles::countInText1(const TileKind &kind)
{
    const std::optional<double> number = typedNumber(controls_.Text1->text());
    const double count = Round(std::fabs(number.value_or(0)));
    if (number && count <= largestCount)
        return static_cast<int>(count);
    ground_.boxes.ShowInfoBox(number ? u"Diese Anzahl ist zu groß. Es dürfen höchstens %1 %2 sein."_s.arg(
                                           QString::number(largestCount), QString::fromUtf16(kind.plural))
                                     : u"Bitte schreibe eine Zahl in das Feld \"Anzahl Wortel\""_s,
                              BoxSign::Info, product::name);
    return std::nullopt;
}

QString BulkTiles::randomStem()
{
    ground_.rnd.Randomize();
    return lists_.WortelList.at(ground_.rnd.absInt(lists_.WortelList.count()));
}

std::unique_ptr<cWortel> BulkTiles::randomTile(const places::Draw &draw, const QString &text) const
{
    const BoardMeasures &window = store_.measures();
    const places::Place drawn = places::randomPlace(ground_.rnd, draw, window);
    const places::Place place = places::onBoard(drawn, window, store_.extentOf(text));
    return store_.makeTile(place.x, place.y, text, wortelKind);
}

// Filling ------------------------------------------------------------------------------------------

void BulkTiles::AddRandomWortel(int count)
{
    Procedure step{ground_.log, "AddRandomWortel", form};
    const int filter = store_.filter().selected();
    step([&] {
        TileList added;
        for (int i = 1; i <= count; ++i) {
            const QString stem = randomStem();
            ground_.rnd.Randomize();
            added.push_back(randomTile(places::addedWortel, stem));
        }
        const CanvasSurface::Batch batch(canvas_.surface());
        store_.appendAll(std::move(added));
        store_.counters().add(0, count);
    });
    step([&] { canvas_.RecallFilter(filter); });
}

void BulkTiles::addOneWortel()
{
    const QString stem = lists_.WortelList.at(ground_.rnd.absInt(lists_.WortelList.count()));
    TileList added;
    added.push_back(randomTile(places::addedWortel, stem));
    store_.appendAll(std::move(added));
    store_.counters().add(0, 1);
    store_.counters().updateTotal();
}

int BulkTiles::layFirstBoard(int count, int bandTop)
{
    Procedure step{ground_.log, "ProgInit", form, Procedure::Silent};
    Work work(ground_);
    TileList fresh;
    step([&] { layWortels(count, false, fresh, work, Placement::startBound); });
    const auto laid = static_cast<int>(fresh.size());
    step([&] { layAffixRows(fresh, bandTop); });
    store_.replaceAll(std::move(fresh));
    store_.counters().set(0, laid);
    step([&] { store_.counters().updateTotal(); });
    step([&] { canvas_.repaint(); });
    return laid;
}

bool BulkTiles::Refill()
{
    Procedure step{ground_.log, "Refill", form};
    const bool wholeList = controls_.Check1->isChecked();
    const std::optional<int> wanted =
        wholeList ? std::optional<int>(lists_.WortelList.count()) : countInText1();
    if (!wanted)
        return false;
    const bool isNought = typedNumber(controls_.Text1->text()) == 0.0;
    if (isNought)
        ground_.notes.tell(note::numberIsNought);
    else if (lists_.WortelList.isEmpty())
        ground_.notes.tell(note::listEmpty, u"Wortel"_s);
    const int filter = store_.filter().selected();
    Work work(ground_);
    TileList fresh;
    if (!isNought) {
        const FrozenBoard frozen(canvas_.surface());
        step([&] { layWortels(*wanted, wholeList, fresh, work, Placement::noBound); });
        step([&] { layAffixRows(fresh, store_.measures().BandTop()); });
    }
    step([&] { showFresh(std::move(fresh), filter); });
    return true;
}

/// By the setting without overlap or anywhere, in list order or at random.
void BulkTiles::layWortels(int n, bool wholeList, TileList &fresh, Work &work, int bound)
{
    store_.counters().set(0, 0);
    if (ground_.options.isOn(Setting::NoOverlapOnStart)) {
        placement_.layWortelFree(n, fresh, bound);
        return;
    }
    for (int row = 0; row < n && work.goesOn(); ++row) {
        ground_.rnd.Randomize();
        fresh.push_back(wholeList ? randomTile(places::refilledWortel, lists_.WortelList.at(row))
                                  : randomTile(places::refilledWortel, randomStem()));
        store_.counters().set(0, static_cast<int>(fresh.size()));
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
    Work work(ground_);
    TileList fresh;
    if (n > 0) {
        const FrozenBoard frozen(canvas_.surface());
        step([&] {
            while (static_cast<int>(fresh.size()) < n && work.goesOn()) {
                ground_.rnd.Randomize();
                fresh.push_back(randomTile(places::addedWortel, randomStem()));
            }
        });
        step([&] { layAffixRows(fresh, store_.measures().BandTop()); });
    }
    step([&] { showFresh(std::move(fresh), filter); });
}

void BulkTiles::Refill_Vokals(int n)
{
    Procedure step{ground_.log, "Refill_Vokals", form};
    const int filter = store_.filter().selected();
    Work work(ground_);
    TileList fresh;
    {
        const FrozenBoard frozen(canvas_.surface());
        step([&] { layWortels(n, false, fresh, work, Placement::noBound); });
    }
    step([&] {
        for (auto &tile : store_.copies())
            if (tile->BGColor != wortelKind.back)
                fresh.push_back(std::move(tile));
    });
    step([&] { showFresh(std::move(fresh), filter); });
}

/// The rows at their homes, or above the band where it would hide them. The counters tell the whole lists,
/// though only the first entries have a home: the rows are made so.
void BulkTiles::layAffixRows(TileList &fresh, int bandTop)
{
    Procedure step{ground_.log, "layAffixRows", form, Procedure::Silent};
    int copies = 0; // a number past 16 bits leaves rows without copies
    step([&] {
        const Options &options = ground_.options;
        if (options.isOn(Setting::FillAffix) && !options.text(Setting::NumAffixToFill).isEmpty())
            copies = std::max(0, CInt(options.number(Setting::NumAffixToFill)));
    });
    const auto layRow = [&](const std::vector<AffixHome> &homes, const TileKind &kind) {
        for (const AffixHome &home : homes) {
            const int top = std::min(home.y, std::max(0, bandTop - cWortel::height - 1));
            for (int copy = 0; copy <= copies; ++copy)
                fresh.push_back(store_.makeTile(home.x, top, home.text, kind));
        }
    };
    const auto count = [&](const WordStore &list, const TileKind &kind) {
        store_.counters().set(kind.filterIndex, Int16(static_cast<long long>(list.count()) * (1 + copies)));
    };
    step([&] { layRow(homes_.prefixes, prefixKind); });
    step([&] { count(lists_.PrefixList, prefixKind); });
    step([&] { layRow(homes_.suffixes, suffixKind); });
    step([&] { count(lists_.SuffixList, suffixKind); });
}

/// The fresh tiles take the board; an empty board has no affixes either. After an early end the counter says
/// what lies there.
void BulkTiles::showFresh(TileList fresh, int filter)
{
    Procedure step{ground_.log, "showFresh", form, Procedure::Silent};
    if (ground_.gate.isClosing())
        return;
    if (fresh.empty())
        for (const TileKind &kind : tileKinds)
            store_.counters().set(kind.filterIndex, 0);
    store_.replaceAll(std::move(fresh));
    store_.counters().set(0, store_.countOf(wortelKind.back));
    step([&] { store_.counters().updateTotal(); });
    step([&] { canvas_.RecallFilter(filter); });
}

void BulkTiles::Check2_LeftPress()
{
    Procedure step{ground_.log, "Check2_MouseDown", form};
    const Work work(ground_);
    step([&] { playSound(ground_, SoundId::TilesShuffled); });
    bool dealt = false;
    step([&] { dealt = Refill(); });
    if (dealt)
        step([&] { news_.Commit(); });
}

// Changing texts -----------------------------------------------------------------------------------

void BulkTiles::ReplaceAllWortel()
{
    Procedure step{ground_.log, "ReplaceAllWortel", form};
    rebuildBoard(ground_, canvas_, step, [&](TilePointer &tile, TileList &) {
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
    rebuildBoard(ground_, canvas_, step, [&](TilePointer &tile, TileList &) {
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
    rebuildBoard(ground_, canvas_, step, [](TilePointer &, TileList &) {});
}

void BulkTiles::InitCapAffix(Colour colour)
{
    Procedure step{ground_.log, "InitCapAffix", form};
    rebuildBoard(ground_, canvas_, step, [&](TilePointer &tile, TileList &rebuilt) {
        if (tile->BGColor != colour)
            return;
        const TilePointer old = std::move(tile);
        const TileKind *kind = kindOfColour(colour);
        if (kind && kind->filterIndex != suffixKind.filterIndex)
            rebuilt.push_back(store_.makeTile(old->xLeft(), old->yTop(), InitCapWord(old->txt), *kind));
    });
}
