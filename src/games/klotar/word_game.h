// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "games/klotar/game_stages.h"
#include "platform/minute_timer.h"

#include <QObject>
#include <QTimer>

class BoardPointer;
class Canvas;
class CommandRouter;
class ControlSheet;
class DictionaryPanel;
class GameSign;
class HighScores;
class StatusLine;
class Tips;
class WordCheck;
class WordTests;
struct Ground;
struct MainControls;
struct WordLists;

/// The timed games Klotar and, on a vowel board, Tonarin: the player builds as many words as the time allows.
/// The game is off, preparing (level 1: words are built on the board) or playing; time ends it with a score,
/// the button without one. Its minutes pass the gate: while a box, a menu or a work stands, none is counted,
/// and they are afterwards.
class WordGame : public QObject
{
    Q_OBJECT

public:
    /// The rooms that the game calls.
    struct Rooms
    {
        ControlSheet &sheet;
        StatusLine &status;
        WordCheck &check;
        const WordTests &tests;
        DictionaryPanel &dictionary;
        Canvas &canvas;
        BoardPointer &pointer;
        Tips &tips;
        HighScores &scores;
    };

    WordGame(Ground &ground, const MainControls &controls, WordLists &lists, PlayState &play,
             const Rooms &rooms);
    /// The menu's entries 701, 1702 and 1703.
    void registerCommands(CommandRouter &router);

    /// Left: starts the game or cancels it. Right: shows the list of the best, unless a game runs.
    void Check3_MouseDown(Qt::MouseButton button);
    /// The level with that index was chosen: it is kept for the next start of the program.
    void Option2_Click(int index);
    /// The level that the options name.
    void takeLevel();
    /// Level 1 to 3. Nothing while words are retyped.
    void StartTheGame(int Level);
    /// The end without a score.
    void StopTheGame();
    /// The window closes: nothing ticks any more.
    void stopTimers();

    void PreparationTimer_Timer();
    void GameTimer_Timer();
    void GameProgress_ValueChanged();
    /// Looks for a word that the player could build; `TxtWordHint` keeps it, hidden.
    void GetGameWordHint();
    void ShowGameWordHint();

    /// Another board is opened: the game on a vowel board has lost its board, and ends without a score.
    void boardOpens();

signals:
    /// A box of the vowels is on: its board is to be loaded.
    void vowelBoardWanted();
    /// The collected words, which stand in the word list, are to be copied.
    void retypeWanted();

private:
    int chosenLevel() const;
    void startVowelGame(Vowels vowels);
    void startTips(Vowels vowels);
    void clearWords();
    void enter(const GameStage &stage);
    void tellTime();
    void minutePassed(void (WordGame::*tick)());
    void stopClock();
    void restBoard();
    void leave();
    void endWithScore();

    Ground &ground_;
    const MainControls &controls_;
    WordLists &lists_;
    PlayState &play_;
    Rooms rooms_;
    MinuteTimer PreparationTimer_;
    MinuteTimer GameTimer_;
    QTimer GameWordHintTimer_;
    QTimer TimerWordHint_;
    GameSign *sign_;
    const GameStage *stage_ = &game_stages::building;
    StageMinutes minutes_;
    int GameTimeOut_ = 7; ///< minutes; a setting past 16 bits leaves the last one
    int GamePrepareTimeOut_ = 7;
    int run_ = 0;  ///< counts stages: a minute of one that is over counts no more
    int game_ = 0; ///< counts games: the hint of one that is over is not shown any more
};
