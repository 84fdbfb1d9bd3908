// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>

#include <cstdint>
#include <functional>

class CommandRouter;
class PlayState;
class QTimer;
class QWidget;
enum class Vowels : std::uint8_t;
struct Ground;
struct MainControls;
struct WordLists;

/// The spelling tips: a tip of the dictionary in use, or of short and long vowels, lies as a translucent
/// panel over the board until it is clicked. It comes a set time after a start, or on request.
class Tips : public QObject
{
    Q_OBJECT

public:
    /// Connects the panel's clicks and the bulb. Its timers pass the gate: a tip that falls due while
    /// something runs comes afterwards.
    Tips(Ground &ground, MainControls &controls, WordLists &lists, const PlayState &play);

    /// Shows the tip of a dictionary (stored path): the same at a start, in a game and on request.
    void ShowLexiconTip2(const QString &lexiconPath);
    /// Shows the tip of one group of vowels.
    void ShowVokalTip(Vowels group);
    void registerCommands(CommandRouter &router);
    bool isShown() const;
    void hideTip();
    /// Lays the panel over the board anew if it is shown: the board has another size.
    void recompose();

    /// Each starts its timer if its setting is on; the interval is read at that moment.
    void startTipTimer();
    /// The tip after a start is still to come.
    bool isTipDue() const;
    void startGameTipTimer();
    void startVokalTipTimer();
    /// The timers of the game and of the vowel game.
    void stopGameTimers();
    void stopTimers();

    void TipTimer_Tick();
    void GameTipTimer_Tick();
    void VokalTipTimer_Tick();
    void Image1_Click();
    void mnuShowTip_Click();

    /// True while the memory game, the stem game or the word chooser is open.
    static bool IsSideWindowOpen();

private:
    void showTip(const QString &text);
    void showWhenFree(const std::function<void()> &show);
    void layOutPanel();
    /// The text of a key, or the empty string where there is none or the file cannot be read.
    QString readTip(const QString &file, const QString &key);
    void complain(const QString &text);

    Ground &ground_;
    MainControls &controls_;
    WordLists &lists_;
    const PlayState &play_;
    QTimer *TipTimer_;
    QTimer *GameTipTimer_;
    QTimer *VokalTipTimer_;
};
