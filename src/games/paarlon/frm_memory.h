// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "games/paarlon/backdrop.h"
#include "games/paarlon/bouncing_ball.h"
#include "games/paarlon/memory_controls.h"
#include "games/paarlon/memory_kind.h"
#include "games/paarlon/memory_rules.h"
#include "games/paarlon/memory_scores.h"
#include "platform/word_store.h"

#include <QColor>
#include <QPointer>
#include <QTimer>

#include <optional>

class BestLists;
struct Ground;
struct WordLists;

/// The window of the card game Paarlon: a ball bounces through the intro, the cards are dealt, and the player
/// turns two at a time, with the pointer or with the keys. It is open beside the main window, asks the gate
/// like everybody else, and unloads when it is closed; the next game has a new one.
class frmMemory : public Backdrop
{
    Q_OBJECT

public:
    frmMemory(Ground &ground, const WordLists &lists, BestLists &best, QWidget *owner);

    /// Shows the window for that kind and lets the intro run; at its end the cards are dealt.
    void Display(const MemoryKind &kind);
    /// Writes the first of the list into `Label1`.
    void DisplayLeader(const MemoryKind &kind);
    /// True if `MorphemeList` holds that text as a whole, case ignored. Never for the empty text.
    /// True if the current stem list has entries for a game without twins. A missing file is told.
    bool EnoughWortelInFile();

    const MemoryRules &rules() const { return rules_; }
    const MemoryControls &controls() const { return controls_; }
    /// Runs before the window is dropped.
    void Form_Unload();

    // What the timers do
    void moveBall();
    void tmrTime_Timer();
    void tmrFlipMorpheme_Timer();

signals:
    void unloaded();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void wireControls();
    void Anfangen_Click();
    void Command2_Click();
    void openOnScreen();
    void setKindColours(const MemoryKind &kind);
    void setInk(const QColor &ink);
    const MemoryKind &checkedKind() const;

    void ballHasLeft();
    void endIntro();
    void startGame();
    bool loadMorphemes(const MemoryKind &kind);
    bool readMorphemeFile(const QString &path, QStringList &lines);
    void waitForLongerList();
    QString fileOf(const MemoryKind &kind) const;

    void picMorphemeCard_Click(int card);
    void finishGame();
    void showCards();
    void showClicks();
    void setCurrentCard(int card);
    void moveCurrentCard(int rows, int columns);

    Ground &ground_;
    const WordLists &lists_;
    BestLists &best_;
    MemoryControls controls_;
    MemoryRules rules_;
    const MemoryKind *kind_ = &wortelMemory; ///< of the cards
    MemoryScores::CardColours colours_;
    WordStore MorphemeList_;
    QColor ink_; ///< of the side panel
    int BestScore_ = 0;
    int currentCard_ = 0;

    std::optional<BouncingBall> ball_; ///< while the intro runs
    qint64 ballMoved_ = 0;             ///< milliseconds of the running clock
    int CanvasHeight_ = 0;             ///< twips of the design
    bool waitsForList_ = false;
    bool isUnloaded_ = false;
    QTimer intro_;
    QTimer tmrTime_;
    QTimer tmrFlipMorpheme_;
};
