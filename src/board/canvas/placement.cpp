// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/canvas/placement.h"

#include "board/canvas/canvas.h"
#include "platform/boxes.h"
#include "platform/clock.h"
#include "platform/ground.h"
#include "platform/modes.h"
#include "platform/options.h"
#include "platform/procedure.h"
#include "platform/rnd.h"
#include "platform/text.h"
#include "platform/word_lists.h"
#include "widgets/click_label.h"
#include "widgets/gradient.h"
#include "widgets/main_controls.h"
#include "widgets/press_button.h"

#include <memory>
#include <utility>

using namespace Qt::StringLiterals;
using places::Place;

namespace {

constexpr auto form = "frmMain";
constexpr long long triesBeforeCancelIsOffered = 50'000;

/// `PlacingBusy` for the time of one search.
class Busy
{
public:
    explicit Busy(Modes &modes)
        : modes_(modes)
    {
        modes_.PlacingBusy = true;
    }
    ~Busy() { modes_.PlacingBusy = false; }
    Busy(const Busy &) = delete;
    Busy &operator=(const Busy &) = delete;

private:
    Modes &modes_;
};

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
        if (laid_ > 0)
            counters_.add(0, std::exchange(laid_, 0));
    }

private:
    TileCounters &counters_;
    int laid_ = 0;
};

Placement::Placement(Ground &ground, const MainControls &controls, Modes &modes, const WordLists &lists,
                     Canvas &canvas)
    : ground_(ground)
    , controls_(controls)
    , modes_(modes)
    , lists_(lists)
    , canvas_(canvas)
    , store_(canvas.store())
{
    takeTryLimit();
    connect(&ground.options, &Options::applied, this, &Placement::takeTryLimit);
    connect(controls.Label4, &ClickLabel::clicked, this, &Placement::stop);
}

void Placement::takeTryLimit()
{
    Procedure step{ground_.log, "takeTryLimit", form, Procedure::Silent};
    step([&] { tryLimit_ = CLng(ground_.options.number(Setting::MaxTriesToPlace) * 1000); });
}

void Placement::stop() { modes_.StopPlacing = true; }

// At the start and for one more tile ---------------------------------------------------------------

Placement::Found Placement::searchWortel(Place &place, long long &tries, Tally &tally)
{
    const BoardMeasures &measures = store_.measures();
    for (;;) {
        place = places::freeWortel(ground_.rnd, measures.ScaleWidth(), measures.ScaleHeight());
        const bool taken = places::checkOverlapInList(
            store_.tiles(), place.x, place.y, place.x + places::boxWidth, place.y + places::boxHeight);
        if (++tries == tryLimit_) // a try that finds a place counts as well
            return Found::Limit;
        if (!taken)
            return Found::Place;
        if (tries == triesBeforeCancelIsOffered)
            controls_.Label4->show();
        if (ground_.pump.inputWaiting()) {
            tally.write();
            ground_.pump.yield();
        }
        if (modes_.StopPlacing || modes_.Closing)
            return Found::Stopped;
    }
}

void Placement::PlaceWortelFree(int count)
{
    Procedure step{ground_.log, "PlaceWortelFree", form};
    if (modes_.PlacingBusy)
        return;
    const Busy busy(modes_);
    const bool cancelWasShown = !controls_.Label4->isHidden();
    modes_.StopPlacing = false;
    Tally tally(store_.counters());
    step([&] {
        long long tries = 0;
        int listIndex = 0;
        for (int n = 1; n <= count; ++n) {
            Place place;
            if (searchWortel(place, tries, tally) != Found::Place)
                break;
            int index = 0;
            if (controls_.Check1->isChecked()) {
                index = listIndex++;
            } else {
                ground_.rnd.Randomize();
                index = ground_.rnd.absInt(lists_.WortelList.count());
            }
            tally.add();
            store_.CanvasDrawWortel(place.x, place.y, lists_.WortelList.at(index), colours::wortelBack,
                                    colours::wortelText);
        }
    });
    step([&] { tally.write(); });
    modes_.StopPlacing = false;
    controls_.Label4->setVisible(cancelWasShown);
}

// One kind anew ------------------------------------------------------------------------------------

void Placement::NoWortelCollision2(int count, const QString &text)
{
    Procedure step{ground_.log, "NoWortelCollision2", form};
    if (modes_.PlacingBusy)
        return;
    const Busy busy(modes_);
    step([&] {
        const BoardMeasures &measures = store_.measures();
        for (int n = 1; n <= count && !modes_.Closing; ++n) {
            Place place;
            do {
                place = places::spreadWortel(ground_.rnd, measures.ScaleWidth(), measures.ScaleHeight());
                if (ground_.pump.inputWaiting())
                    ground_.pump.yield();
            } while (!modes_.Closing &&
                     places::checkOverlapInList(store_.tiles(), place.x, place.y, place.x + places::boxWidth,
                                                place.y + places::boxHeight));
            store_.CanvasDrawWortel(place.x, place.y, text, colours::wortelBack, colours::wortelText);
        }
    });
}

// All kinds anew -----------------------------------------------------------------------------------

bool Placement::MorphemeCollision(int count, const QString &text, Colour back, Colour textColour)
{
    Procedure step{ground_.log, "MorphemeCollision", form};
    if (modes_.PlacingBusy)
        return false;
    const Busy busy(modes_);
    modes_.StopPlacing = false;
    bool givenUp = false;
    step([&] {
        const BoardMeasures &measures = store_.measures();
        const int width = places::probeWidth(back, text);
        for (int n = 1; n <= count && !givenUp; ++n) {
            Place place = places::firstMorpheme(ground_.rnd, measures.ScaleWidth(), measures.ScaleHeight());
            TriedAgain_ = false;
            long long tries = 0;
            for (;;) {
                if (modes_.StopPlacing || modes_.Closing) {
                    givenUp = true;
                    break;
                }
                place = places::spreadMorpheme(ground_.rnd, measures.ScaleWidth(), measures.ScaleHeight());
                if (!places::checkOverlapInList(store_.tiles(), place.x, place.y, place.x + width,
                                                place.y + places::boxHeight))
                    break;
                // After a Yes the count has passed the limit, so this tile is asked for once only.
                if (++tries == tryLimit_ && !askToGoOn(tryLimit_)) {
                    givenUp = true;
                    break;
                }
                if (ground_.pump.inputWaiting())
                    ground_.pump.yield();
            }
            if (givenUp)
                break;
            store_.CanvasDrawWortel(place.x, place.y, text, back, textColour);
            store_.counters().set(TileFilter::all, store_.counters().sum() + 1);
        }
    });
    if (givenUp)
        step([&] { giveUp(); });
    return givenUp;
}

void Placement::giveUp()
{
    controls_.Label4->hide();
    store_.counters().updateTotal();
}

bool Placement::askToGoOn(long long limit)
{
    canvas_.CanvasRedrawAll();
    canvas_.surface().LockWindow(false);
    store_.counters().updateTotal();
    const QString question =
        places::limitQuestion(TriedAgain_, store_.counters().value(TileFilter::all), static_cast<int>(limit));
    TriedAgain_ = true;
    const Boxes::Answer answer = ground_.boxes.plainBox(Boxes::Icon::Question, u"Wortel-Meister"_s, question,
                                                        Boxes::Buttons::YesNoCancel);
    ground_.pump.yield();
    modes_.PlacingBusy = false;
    modes_.StopPlacing = false;
    if (answer != Boxes::Answer::Yes)
        return false;
    canvas_.surface().LockWindow(true);
    controls_.Label4->show();
    return true;
}

void Placement::CenterOnFreeSpace(const MainControls &controls, QWidget &control)
{
    const QWidget &window = *controls.form;
    control.move(window.width() / 2 - control.width() / 2,
                 window.height() / 2 - control.height() / 2 - controls.Picture1->height());
}
