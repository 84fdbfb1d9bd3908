// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/canvas/placement.h"

#include "board/canvas/canvas.h"
#include "platform/boxes.h"
#include "platform/clock.h"
#include "platform/ground.h"
#include "platform/options.h"
#include "platform/procedure.h"
#include "platform/product.h"
#include "platform/rnd.h"
#include "platform/text.h"
#include "platform/word_lists.h"
#include "platform/work.h"
#include "widgets/gradient.h"
#include "widgets/main_controls.h"
#include "widgets/press_button.h"

#include <utility>

using namespace Qt::StringLiterals;
using places::Place;

namespace {

constexpr auto form = "frmMain";
constexpr long long triesBeforeCancelIsOffered = 50'000;

bool overlaps(const TileList &tiles, const Place &place, int width = places::boxWidth)
{
    return places::checkOverlapInList(tiles, place.x, place.y, place.x + width, place.y + places::boxHeight);
}

} // namespace

/// Counts laid Wortel tiles and writes the counter when somebody may look: a caption costs more than a
/// search.
class Placement::Tally
{
public:
    explicit Tally(TileCounters &counters)
        : counters_(counters)
    {}

    void add() { ++laid_; }
    void write()
    {
        if (laid_ == 0)
            return;
        counters_.add(0, std::exchange(laid_, 0));
        counters_.updateTotal();
    }

private:
    TileCounters &counters_;
    int laid_ = 0;
};

Placement::Placement(Ground &ground, const MainControls &controls, const WordLists &lists, Canvas &canvas)
    : ground_(ground)
    , controls_(controls)
    , lists_(lists)
    , canvas_(canvas)
    , store_(canvas.store())
{
    takeTryLimit();
}

void Placement::takeTryLimit()
{
    Procedure step{ground_.log, "takeTryLimit", form, Procedure::Silent};
    step([&] { tryLimit_ = CLng(ground_.options.number(Setting::MaxTriesToPlace) * 1000); });
}

// At the start and for one more tile ---------------------------------------------------------------

int Placement::PlaceWortelFree(int count, int bound)
{
    TileList laid;
    searchWortels(
        count, bound,
        [&](const Place &place) { return overlaps(store_.tiles(), place) || overlaps(laid, place); }, laid);
    const auto result = static_cast<int>(laid.size());
    if (!ground_.gate.isClosing())
        store_.appendAll(std::move(laid));
    return result;
}

void Placement::layWortelFree(int count, TileList &laid, int bound)
{
    searchWortels(
        count, bound, [&](const Place &place) { return overlaps(laid, place); }, laid);
}

void Placement::searchWortels(int count, int bound, const IsTaken &isTaken, TileList &laid)
{
    Procedure step{ground_.log, "PlaceWortelFree", form};
    Work work(ground_);
    Tally tally(store_.counters());
    step([&] {
        const BoardMeasures &window = store_.measures();
        long long tries = 0;
        for (int n = 1; n <= count; ++n) {
            const QString stem = nextStem(n - 1);
            const int extent = store_.extentOf(stem);
            Place place;
            for (bool taken = true; taken;) {
                place = places::randomPlace(ground_.rnd, places::freeWortel, window);
                place = places::onBoard(place, window, extent);
                taken = isTaken(place);
                if (++tries == tryLimit_ || tries >= bound) // a try that finds a place counts as well
                    return;
                if (tries == triesBeforeCancelIsOffered)
                    work.offerCancel();
                if (work.inputWaits())
                    tally.write();
                if (!work.goesOn())
                    return;
            }
            tally.add();
            laid.push_back(store_.makeTile(place.x, place.y, stem, wortelKind));
        }
    });
    step([&] { tally.write(); });
}

/// By its row with "Alle" checked, else at random.
QString Placement::nextStem(int row)
{
    if (controls_.Check1->isChecked())
        return lists_.WortelList.at(row);
    ground_.rnd.Randomize();
    return lists_.WortelList.at(ground_.rnd.absInt(lists_.WortelList.count()));
}

// One kind anew ------------------------------------------------------------------------------------

void Placement::NoWortelCollision2(int count, const QString &text, TileList &laid, Work &work)
{
    Procedure step{ground_.log, "NoWortelCollision2", form};
    step([&] {
        const BoardMeasures &window = store_.measures();
        for (int n = 1; n <= count; ++n) {
            Place place;
            long long tries = 0;
            do {
                place = places::randomPlace(ground_.rnd, places::spreadWortel, window);
                place = places::onBoard(place, window, store_.extentOf(text));
                if (++tries == triesBeforeCancelIsOffered)
                    work.offerCancel();
            } while (work.goesOn() && overlaps(laid, place));
            laid.push_back(store_.makeTile(place.x, place.y, text, wortelKind));
        }
    });
}

// All kinds anew -----------------------------------------------------------------------------------

bool Placement::MorphemeCollision(const QString &text, const TileKind &kind, TileList &laid, Work &work)
{
    Procedure step{ground_.log, "MorphemeCollision", form};
    bool givenUp = false;
    step([&] {
        const BoardMeasures &window = store_.measures();
        const int width = places::probeWidth(kind.back, text);
        const int extent = store_.extentOf(text);
        Place place = places::randomPlace(ground_.rnd, places::firstMorpheme, window);
        TriedAgain_ = false;
        for (long long tries = 0;;) {
            place = places::randomPlace(ground_.rnd, places::spreadMorpheme, window);
            place = places::onBoard(place, window, extent);
            if (!overlaps(laid, place, width))
                break;
            // After a Yes the count has passed the limit, so this tile is asked for once only.
            givenUp = (++tries == tryLimit_ && !askToGoOn(laid)) || !work.goesOn();
            if (givenUp)
                return;
        }
        laid.push_back(store_.makeTile(place.x, place.y, text, kind));
        store_.counters().set(TileFilter::all, store_.counters().sum() + 1);
    });
    return givenUp;
}

/// The board shows what has been laid so far; the store keeps all tiles until the question is answered.
bool Placement::askToGoOn(const TileList &laid)
{
    canvas_.drawTiles(laid);
    canvas_.surface().LockWindow(false);
    store_.counters().updateTotal();
    const QString question =
        places::limitQuestion(TriedAgain_, store_.counters().value(TileFilter::all), tryLimit_);
    TriedAgain_ = true;
    const Boxes::Answer answer =
        ground_.boxes.plainBox(Boxes::Icon::Question, product::name, question, Boxes::Buttons::YesNoCancel);
    ground_.pump.yield();
    canvas_.surface().LockWindow(true);
    return answer == Boxes::Answer::Yes;
}

void Placement::CenterOnFreeSpace(const MainControls &controls, QWidget &control)
{
    const QWidget &window = *controls.form;
    control.move(window.width() / 2 - control.width() / 2,
                 window.height() / 2 - control.height() / 2 - controls.Picture1->height());
}
