// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QTimer>

class HighScores;
class QGroupBox;
class StemMarking;
struct KernlingDesk;

/// The game against the clock: as many right stems as possible before `LocateGameTimer` fires. What a game
/// changes on the window goes back when it ends, and the way of marking is "Manual" then.
class LocateGame : public QObject
{
    Q_OBJECT

public:
    LocateGame(KernlingDesk &desk, StemMarking &marking, HighScores &scores, QGroupBox *Frame1,
               QObject *parent);

    bool KernlingRunning() const { return running_; }
    /// Left: starts the game, or stops it without a look at the score. Right: shows the list of the best.
    void Command10_MouseDown(Qt::MouseButton button);
    /// Ends the game without a look at the score, if one runs.
    void stop();
    /// The time is over: ends the game and looks at the score.
    void LocateGameTimer_Tick();

private:
    void start();
    void layOut(bool running);
    /// The time of a game in milliseconds; 0, after a word to the player, if the options hold none.
    int gameTime() const;

    KernlingDesk &desk_;
    StemMarking &marking_;
    HighScores &scores_;
    QGroupBox *Frame1_;
    QTimer LocateGameTimer_{this};
    bool running_ = false;
};
