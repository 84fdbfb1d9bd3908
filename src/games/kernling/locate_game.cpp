// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/kernling/locate_game.h"

#include "games/kernling/kernling_controls.h"
#include "games/kernling/kernling_desk.h"
#include "games/kernling/kernling_text.h"
#include "games/kernling/stem_marking.h"
#include "games/kernling/time_sign.h"
#include "games/scores/high_scores.h"
#include "platform/ground.h"
#include "platform/options.h"
#include "platform/procedure.h"
#include "platform/text.h"
#include "widgets/press_button.h"

#include <QApplication>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr auto form = "FrmKernling";
constexpr double longestGame = 24 * 60 * 60; ///< seconds
constexpr int second = 1000;                 ///< milliseconds

} // namespace

LocateGame::LocateGame(KernlingDesk &desk, StemMarking &marking, HighScores &scores, QGroupBox *Frame1,
                       QObject *parent)
    : QObject(parent)
    , desk_(desk)
    , marking_(marking)
    , scores_(scores)
    , Frame1_(Frame1)
{
    LocateGameTimer_.setObjectName(u"LocateGameTimer"_s);
    LocateGameTimer_.setSingleShot(true);
    LocateGameTimer_.setTimerType(Qt::PreciseTimer);
    // It may fire while a work runs or a box is open; the game ends behind them.
    connect(&LocateGameTimer_, &QTimer::timeout, this,
            [this] { desk_.doors.whenFree([this] { LocateGameTimer_Tick(); }); });
}

void LocateGame::Command10_MouseDown(Qt::MouseButton button)
{
    Procedure step{desk_.ground.log, "Command10_MouseDown", form};
    if (button == Qt::RightButton)
        scores_.DisplayHighScores(ScoredGame::Kernling);
    else if (running_)
        stop();
    else
        start();
}

int LocateGame::gameTime() const
{
    const double seconds = desk_.ground.options.number(Setting::KernlingGameTime);
    if (seconds >= 1 && seconds <= longestGame)
        return static_cast<int>(seconds) * second;
    desk_.tell(u"In den Optionen steht als Zeitbegrenzung „%1“.\nMöglich sind 1 bis %2 Sekunden."_s
                   .arg(desk_.ground.options.text(Setting::KernlingGameTime).left(20))
                   .arg(static_cast<int>(longestGame)));
    return 0;
}

void LocateGame::start()
{
    const int time = gameTime();
    if (time == 0)
        return;
    running_ = true;
    desk_.controls.RTF->unpaintAll();
    marking_.clearFound();
    marking_.clearFalse();
    layOut(true);
    desk_.controls.Check5->setChecked(true);
    desk_.controls.OptAutoHighlight->setChecked(true);
    desk_.controls.rtfResponse->clear();
    desk_.controls.Text1->clear();
    desk_.controls.Image1->hide();
    desk_.controls.Picture2->start(desk_.ground.clock, time);
    LocateGameTimer_.start(time);
}

void LocateGame::stop()
{
    if (!running_)
        return;
    running_ = false;
    LocateGameTimer_.stop();
    desk_.controls.Picture2->stop();
    layOut(false);
    desk_.controls.OptManualHighlight->setChecked(true);
}

void LocateGame::layOut(bool running)
{
    const KernlingControls &c = desk_.controls;
    for (QLabel *count : {c.Label3, c.Label14})
        count->setVisible(!running);
    for (PressButton *tool : {c.Command4, c.Command5, c.Command8, c.Command11, c.Command12, c.cmdResetColors})
        tool->setEnabled(!running);
    for (QLabel *points : {c.Label13, c.Label8})
        points->setVisible(running);
    for (QRadioButton *way : {c.OptManualHighlight, c.OptAutoHighlight})
        way->setEnabled(!running); // "Auto" is forced
    Frame1_->setEnabled(!running);
    c.RTF->setLocked(running);
    const QString tip = running ? u"Spiel abbrechen"_s : u"Spiel starten / Bestenliste zeigen"_s;
    c.Command10->setToolTip(tip);
    c.Command10->setAccessibleName(tip);
}

void LocateGame::LocateGameTimer_Tick()
{
    if (!running_)
        return;
    Procedure step{desk_.ground.log, "LocateGameTimer_Tick", form};
    while (QWidget *popup = QApplication::activePopupWidget())
        if (!popup->close())
            break;
    stop();
    desk_.controls.rtfResponse->show();
    KernlingText &text = *desk_.controls.RTF;
    // A key would replace the last marking.
    text.select({text.selection().start + text.selection().length, 0});
    std::optional<int> wrong;
    if (desk_.ground.options.isOn(Setting::KernlingShowFalse))
        wrong = desk_.lists.UserFalseWortelList.count();
    scores_.CheckForHighScore(ScoredGame::Kernling, Val(desk_.controls.Label8->text()), wrong);
}
