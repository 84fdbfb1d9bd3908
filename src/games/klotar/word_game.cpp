// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
// The ways into the word game; its minutes and its end stand in word_game_minutes.cpp.
#include "games/klotar/word_game.h"

#include "board/canvas/canvas.h"
#include "board/hand/board_pointer.h"
#include "board/hand/command_router.h"
#include "board/tiles/tile_store.h"
#include "games/klotar/game_sign.h"
#include "games/scores/high_scores.h"
#include "language/dictionary_panel.h"
#include "language/tips.h"
#include "language/word_check.h"
#include "platform/gate.h"
#include "platform/ground.h"
#include "platform/note_texts.h"
#include "platform/notes.h"
#include "platform/options.h"
#include "platform/procedure.h"
#include "platform/sounds.h"
#include "platform/text.h"
#include "platform/word_lists.h"
#include "widgets/colour.h"
#include "widgets/control_sheet.h"
#include "widgets/dropper.h"
#include "widgets/main_controls.h"
#include "widgets/picture_box.h"
#include "widgets/press_button.h"
#include "widgets/status_line.h"
#include "widgets/store_list.h"

#include <QLabel>
#include <QSignalBlocker>

#include <array>

using namespace Qt::StringLiterals;

namespace {

using C = MainControls;

constexpr auto form = "frmMain";
constexpr std::array levels{Setting::GameDifficult1, Setting::GameDifficult2, Setting::GameDifficult3};
constexpr int hintStays = 5000; ///< milliseconds

/// From the start to the end: the board is for the game alone, and words are entered as they are checked.
constexpr SheetRow gameSheet[] = {
    {tool<&C::Check1>, SheetRow::Hidden},
    {tool<&C::Check2>, SheetRow::Hidden},
    {tool<&C::Label3>, SheetRow::Hidden},
    {tool<&C::Label6>, SheetRow::Hidden},
    {tool<&C::Text1>, SheetRow::Hidden},
    {tool<&C::Command6>, SheetRow::Hidden},
    {tool<&C::Command3>, SheetRow::Disabled},
    {tool<&C::Command4>, SheetRow::Disabled},
    {tool<&C::Check4>, SheetRow::Disabled},
    {tool<&C::Option2, 0>, SheetRow::Disabled},
    {tool<&C::Option2, 1>, SheetRow::Disabled},
    {tool<&C::Option2, 2>, SheetRow::Disabled},
    {tool<&C::ChkVokal, 0>, SheetRow::Disabled},
    {tool<&C::ChkVokal, 1>, SheetRow::Disabled},
    {tool<&C::Label1>, SheetRow::Shown},
    {tool<&C::Check3>, SheetRow::None, u"Spielmodus abbrechen"},
    {tool<&C::Command2>, SheetRow::None, u"Wortkontrolle"},
};
/// While words are only built. Afterwards word check and eraser act, or no word could be entered.
constexpr SheetRow buildingSheet[] = {
    {tool<&C::Dropper1>, SheetRow::Disabled},
    {tool<&C::Command2>, SheetRow::Disabled},
    {tool<&C::Command5>, SheetRow::Disabled},
    {tool<&C::Option1, 0>, SheetRow::Disabled},
};

} // namespace

WordGame::WordGame(Ground &ground, const MainControls &controls, WordLists &lists, PlayState &play,
                   const Rooms &rooms)
    : ground_(ground)
    , controls_(controls)
    , lists_(lists)
    , play_(play)
    , rooms_(rooms)
    , PreparationTimer_(ground.clock, this)
    , GameTimer_(ground.clock, this)
    , GameWordHintTimer_(this)
    , sign_(new GameSign(controls.picCanvas))
{
    connect(&PreparationTimer_, &MinuteTimer::Timer, this,
            [this] { minutePassed(&WordGame::PreparationTimer_Timer); });
    connect(&GameTimer_, &MinuteTimer::Timer, this, [this] { minutePassed(&WordGame::GameTimer_Timer); });
    PreparationTimer_.setObjectName(u"PreparationTimer"_s);
    GameTimer_.setObjectName(u"GameTimer"_s);
    GameWordHintTimer_.setObjectName(u"GameWordHintTimer"_s);
    GameWordHintTimer_.setSingleShot(true);
    connect(&GameWordHintTimer_, &QTimer::timeout, this, [this] {
        ground_.gate.whenFree([this, game = game_] {
            if (game == game_)
                ShowGameWordHint();
        });
    });
    TimerWordHint_.setSingleShot(true);
    TimerWordHint_.setInterval(hintStays);
    connect(&TimerWordHint_, &QTimer::timeout, controls_.TxtWordHint, &QWidget::hide);
}

// The button and the menu
// ------------------------------------------------------------------------------------------------------------

void WordGame::Check3_MouseDown(Qt::MouseButton button)
{
    Procedure step{ground_.log, "Check3_MouseDown", form};
    if (button == Qt::RightButton) {
        if (play_.GameActive()) {
            ground_.notes.tell(note::afterGame);
            return;
        }
        const ScoredGame game =
            rooms_.check.boxVowels() == Vowels::None ? ScoredGame::Klotar : ScoredGame::Tonarin;
        step([&] { rooms_.scores.DisplayHighScores(game); });
        if (!ground_.gate.isClosing())
            step([&] { rooms_.canvas.store().filter().select(TileFilter::all); });
    } else if (play_.GameActive()) {
        step([&] { StopTheGame(); });
    } else {
        step([&] { StartTheGame(chosenLevel()); });
    }
}

void WordGame::registerCommands(CommandRouter &router)
{
    router.onMenu(701, [this] {
        rooms_.check.clearVowelBoxes();
        Check3_MouseDown(Qt::LeftButton);
    });
    router.onMenu(1702, [this] { startVowelGame(Vowels::Short); });
    router.onMenu(1703, [this] { startVowelGame(Vowels::Long); });
}

void WordGame::Option2_Click(int index)
{
    Procedure step{ground_.log, "Option2_Click", form};
    play_.setLevel(index + 1);
    step([&] { ground_.options.keepOption(levels[static_cast<std::size_t>(index)]); });
}

void WordGame::takeLevel()
{
    for (std::size_t index = 0; index < levels.size(); ++index) {
        if (!ground_.options.isOn(levels[index]))
            continue;
        controls_.Option2[index]->setChecked(true);
        play_.setLevel(static_cast<int>(index) + 1);
    }
}

void WordGame::startVowelGame(Vowels vowels)
{
    if (play_.RetypeActive()) {
        ground_.notes.tell(note::afterRetype);
        return;
    }
    for (PressButton *box : controls_.ChkVokal) {
        const QSignalBlocker quietly(box); // the game's start loads the board
        box->setChecked(box == controls_.ChkVokal[vowels == Vowels::Short ? 0 : 1]);
    }
    Check3_MouseDown(Qt::LeftButton);
}

int WordGame::chosenLevel() const
{
    for (std::size_t level = 0; level < controls_.Option2.size(); ++level)
        if (controls_.Option2[level]->isChecked())
            return static_cast<int>(level) + 1;
    return 1;
}

// Start
// ------------------------------------------------------------------------------------------------------------

void WordGame::StartTheGame(int Level)
{
    Procedure step{ground_.log, "StartTheGame", form};
    if (play_.RetypeActive()) {
        ground_.notes.tell(note::afterRetype);
        return;
    }
    const Vowels vowels = rooms_.check.boxVowels();
    const GameStage &stage = game_stages::first(Level);
    play_.setLevel(Level);
    play_.startGame(stage.phase, vowels);
    step([&] { playSound(ground_, SoundId::GameStarted); });
    step([&] { rooms_.dictionary.close(); });
    rooms_.tips.hideTip();
    if (vowels != Vowels::None)
        step([&] { emit vowelBoardWanted(); });
    if (ground_.gate.isClosing())
        return;
    if (rooms_.check.boxVowels() != vowels) { // there is no such board, and the player has been told
        play_.stop();
        return;
    }
    rooms_.sheet.lay(Reason::Game, gameSheet);
    controls_.Check3->setFace(paint::running);
    step([&] { GameTimeOut_ = CInt(ground_.options.number(Setting::GameTimeOut)); });
    step([&] { GamePrepareTimeOut_ = CInt(Fix(ground_.options.number(Setting::GamePrepareTimeOut))); });
    step([&] { startTips(vowels); });
    step([&] { enter(stage); });
}

void WordGame::startTips(Vowels vowels)
{
    if (vowels != Vowels::None) {
        rooms_.tips.startVokalTipTimer();
        return;
    }
    rooms_.tips.startGameTipTimer();
    controls_.TxtWordHint->clear();
    if (!ground_.options.isOn(Setting::GameShowWordHint))
        return;
    GetGameWordHint();
    startForSeconds(GameWordHintTimer_, ground_.options.number(Setting::GameShowWordHintTime));
}

void WordGame::clearWords()
{
    lists_.GameCollectedList.clear();
    lists_.CorrectWordList.clear();
    controls_.CorrectWordList->hide();
    controls_.Label1->clear();
}

void WordGame::enter(const GameStage &stage)
{
    Procedure step{ground_.log, "StartTheGame", form, Procedure::Silent};
    const bool builds = stage.phase == PlayState::Phase::Preparing;
    stage_ = &stage;
    minutes_ = StageMinutes(builds ? GamePrepareTimeOut_ : GameTimeOut_);
    ++run_;
    clearWords();
    rooms_.sheet.set(Reason::Building, buildingSheet, builds);
    controls_.Option1[static_cast<std::size_t>(stage.dragMode)]->setChecked(true);
    rooms_.status.show(StatusLine::Layer::Mode, minutes_.maximum(),
                       game_stages::startCaption(stage, minutes_.maximum()));
    tellTime();
    MinuteTimer &timer = builds ? PreparationTimer_ : GameTimer_;
    timer.setTimerMode(MinuteTimer::TimerMode::Minutes);
    timer.setMinuteInterval(1);
    timer.setEnabled(true);
    if (builds) {
        controls_.picCanvas->setFocus();
        return;
    }
    step([&] { controls_.Dropper1->takeFocus(); });
    controls_.Dropper1->selectAll(); // what still stands there is no part of the first word
}
