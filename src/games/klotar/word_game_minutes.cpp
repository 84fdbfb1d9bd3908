// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
// The word game's time: its minutes, its end with and without a score, and the hint.
#include "games/klotar/word_game.h"

#include "board/canvas/canvas.h"
#include "board/canvas/scroller_place.h"
#include "board/hand/board_pointer.h"
#include "board/tiles/tile_store.h"
#include "games/klotar/game_sign.h"
#include "games/klotar/game_words.h"
#include "games/scores/high_scores.h"
#include "language/tips.h"
#include "language/word_check.h"
#include "language/word_tests.h"
#include "platform/boxes.h"
#include "platform/gate.h"
#include "platform/ground.h"
#include "platform/options.h"
#include "platform/procedure.h"
#include "platform/product.h"
#include "platform/sounds.h"
#include "platform/word_lists.h"
#include "platform/work.h"
#include "widgets/control_sheet.h"
#include "widgets/list_stand.h"
#include "widgets/main_controls.h"
#include "widgets/press_button.h"
#include "widgets/status_line.h"
#include "widgets/store_list.h"

#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

constexpr auto form = "frmMain";

} // namespace

// Minutes
// ------------------------------------------------------------------------------------------------------------

/// Nothing ticks behind a box, nor in the middle of something else.
void WordGame::minutePassed(void (WordGame::*tick)())
{
    ground_.gate.whenFree([this, tick, run = run_] {
        if (run == run_ && play_.GameActive())
            (this->*tick)();
    });
}

void WordGame::tellTime()
{
    sign_->tell(QString::fromUtf16(stage_->task), minutes_.left());
    sign_->raise();
}

void WordGame::GameProgress_ValueChanged()
{
    rooms_.status.setValue(StatusLine::Layer::Mode, minutes_.value());
    rooms_.status.setCaption(StatusLine::Layer::Mode,
                             game_stages::valueCaption(minutes_.maximum(), minutes_.value()));
    tellTime();
}

void WordGame::PreparationTimer_Timer()
{
    Procedure step{ground_.log, "PreparationTimer_Timer", form};
    const bool over = minutes_.pass();
    step([&] { GameProgress_ValueChanged(); });
    if (!over) {
        rooms_.status.setCaption(StatusLine::Layer::Mode, game_stages::buildingCaption(minutes_.left()));
        return;
    }
    step([&] { playSound(ground_, SoundId::AllCopied, Setting::GameSoundOnTimeOut); });
    step([&] { restBoard(); });
    stopClock();
    rooms_.sheet.takeOff(Reason::Building);
    step([&] {
        ground_.boxes.ShowInfoBox(
            u"Die Vorbereitungszeit ist zu Ende.\nDu kannst deine Wörter jetzt zur Kontrolle ins "
            "Schreibfenster hineinziehen oder eintippen."_s,
            BoxSign::Info, product::name);
    });
    if (ground_.gate.isClosing())
        return;
    play_.endPreparation();
    step([&] { enter(game_stages::entering); });
}

void WordGame::GameTimer_Timer()
{
    Procedure step{ground_.log, "GameTimer_Timer", form};
    const bool over = minutes_.pass();
    step([&] { GameProgress_ValueChanged(); });
    if (over)
        step([&] { endWithScore(); });
}

void WordGame::stopClock()
{
    for (MinuteTimer *timer : {&PreparationTimer_, &GameTimer_}) {
        timer->setTimerMode(MinuteTimer::TimerMode::Plain);
        timer->setEnabled(false);
        timer->setMinuteInterval(0);
    }
    ++run_;
}

void WordGame::stopTimers()
{
    stopClock();
    GameWordHintTimer_.stop();
    TimerWordHint_.stop();
}

// The end
// ------------------------------------------------------------------------------------------------------------

/// Whatever a hand holds is let go.
void WordGame::restBoard()
{
    const int filter = rooms_.canvas.store().filter().selected();
    rooms_.pointer.letGo();
    rooms_.canvas.CanvasUnSelectAllWortel();
    rooms_.canvas.RecallFilter(filter);
}

/// Every way out: timers, tools and colours as they were. Whoever leaves announces it.
void WordGame::leave()
{
    stopTimers();
    ++game_;
    rooms_.tips.hideTip();
    rooms_.tips.stopGameTimers();
    controls_.TxtWordHint->hide();
    sign_->hide();
    rooms_.status.hide(StatusLine::Layer::Mode);
    rooms_.sheet.takeOff(Reason::Building);
    rooms_.sheet.takeOff(Reason::Game);
    controls_.Check3->setFace({});
    controls_.Option1[1]->setChecked(true);
}

void WordGame::StopTheGame()
{
    Procedure step{ground_.log, "StopTheGame", form};
    controls_.Label1->clear();
    step([&] { leave(); });
    play_.stop();
    rooms_.check.readVowelBoxes(); // a vowel board stays
}

void WordGame::boardOpens()
{
    if (play_.GameShortVowels() || play_.GameLongVowels())
        StopTheGame();
}

void WordGame::endWithScore()
{
    Procedure step{ground_.log, "GameTimer_Timer", form, Procedure::Silent};
    step([&] { playSound(ground_, SoundId::GameOver); });
    step([&] { restBoard(); });
    step([&] { leave(); });
    const bool vowels = play_.GameShortVowels() || play_.GameLongVowels();
    step([&] {
        const int points = GetPoints(lists_);
        rooms_.scores.CheckForHighScore(vowels ? ScoredGame::Tonarin : ScoredGame::Klotar, points,
                                        rooms_.tests.GetCorrectNumWords(vowels));
    });
    if (ground_.gate.isClosing())
        return;
    rooms_.canvas.store().filter().select(TileFilter::all);
    play_.stop();
    controls_.Label1->clear();
    step([&] { rooms_.check.clearVowelBoxes(); });
    if (ground_.options.isOn(Setting::ShowCorrectListAfterGame) &&
        !ground_.options.isOn(Setting::ShowCorrectListAfterReType) && !lists_.CorrectWordList.isEmpty())
        showDownToBand(controls_, controls_.CorrectWordList);
    if (ground_.options.isOn(Setting::ReTypeAfterGame))
        step([&] { emit retypeWanted(); });
}

// The hint
// ------------------------------------------------------------------------------------------------------------

void WordGame::GetGameWordHint()
{
    Procedure step{ground_.log, "GetGameWordHint", form};
    const Work work(ground_, {WorkPlan::Bar, 10});
    controls_.TxtWordHint->clear();
    controls_.TxtWordHint->hide();
    step([&] {
        controls_.TxtWordHint->setText(
            findWordHint(rooms_.canvas.store().tiles(), lists_, rooms_.tests, ground_.rnd));
    });
    controls_.TxtWordHint->adjustSize();
    step([&] { placeOverBoard(controls_, ground_.options, ground_.rnd, *controls_.TxtWordHint); });
}

void WordGame::ShowGameWordHint()
{
    if (controls_.TxtWordHint->text().isEmpty())
        return;
    controls_.TxtWordHint->show();
    controls_.TxtWordHint->raise();
    TimerWordHint_.start();
}
