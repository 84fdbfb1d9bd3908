// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/retype/strip_control.h"

#include "board/canvas/scroller_place.h"
#include "platform/ground.h"
#include "platform/options.h"
#include "platform/procedure.h"
#include "platform/text.h"
#include "widgets/gradient.h"
#include "widgets/main_controls.h"
#include "widgets/msg_scroller.h"

#include <QMouseEvent>

#include <algorithm>

namespace {

constexpr int gapBlanks = 36;
constexpr int tickInterval = 125;

// Letters that the last row of a class reads: a share of the board's height, within these pixels.
constexpr int boardToLetters = 20;
constexpr int smallestLetters = 24;
constexpr int largestLetters = 48;

} // namespace

StripControl::StripControl(Ground &ground, const MainControls &controls, QObject *parent)
    : QObject(parent)
    , ground_(ground)
    , controls_(controls)
{
    const MsgScroller *strip = controls_.Scroller;
    connect(strip, &MsgScroller::HotSpotClick, this, &StripControl::MsgScroller_HotSpotClick);
    connect(strip, &MsgScroller::mouseDown, this, &StripControl::MsgScroller_MouseDown);
    connect(strip, &MsgScroller::mouseMoved, this, &StripControl::MsgScroller_MouseMove);
    connect(strip, &MsgScroller::mouseUp, this, &StripControl::MsgScroller_MouseUp);
}

void StripControl::SetUpMsgScroller()
{
    MsgScroller &strip = *controls_.Scroller;
    Procedure step(ground_.log, "SetUpMsgScroller", "frmMain", Procedure::Silent);
    step([&] { strip.setSeperator(QString(gapBlanks, u' ')); });
    step([&] { strip.setScrollInterval(tickInterval); });
    step([&] { strip.setScrollSpeed(CInt(ground_.options.number(Setting::ScrollerSpeed))); });
    const int canPan = ground_.options.box(Setting::ScrollerCanPan);
    step([&] { strip.setAllowPan(canPan != 0); });
    if (canPan != 2) // the third state pans as well, and leaves the tool tip as it is
        step([&] { strip.setToolTip(canPan == 1 ? QStringLiteral("Verschieben / Anhalten") : QString()); });
}

void StripControl::PlaceTheMsgScroller()
{
    Procedure step(ground_.log, "PlaceTheMsgScroller", "frmMain");
    step([&] { takeLetters(); });
    // The place is that of a strip of the usual size; from there it takes what the board has.
    controls_.Scroller->resize(controls_.Scroller->sizeHint());
    step([&] { placeOverBoard(controls_, ground_.options, ground_.rnd, *controls_.Scroller); });
    movedByHand_ = false;
    step([&] { fitToBoard(); });
    controls_.Scroller->raise();
}

/// Letters that move by parts of a pixel would tremble if each were pulled to whole ones.
void StripControl::takeLetters()
{
    QFont letters = controls_.Scroller->font();
    letters.setPixelSize(
        std::clamp(controls_.Picture1->y() / boardToLetters, smallestLetters, largestLetters));
    letters.setHintingPreference(QFont::PreferNoHinting);
    if (letters != controls_.Scroller->font())
        controls_.Scroller->setFont(letters);
}

/// In the middle to both sides, otherwise from the strip's left edge to the board's right one; chance leaves
/// it three quarters of the board. The word field in the band stays free.
void StripControl::fitToBoard()
{
    MsgScroller &strip = *controls_.Scroller;
    const int board = controls_.form->width();
    const int usual = strip.sizeHint().width();
    const int most = ground_.options.isOn(Setting::ScrollerMiddlePos) ? 0
                     : ground_.options.isOn(Setting::ScrollerRndPos)  ? board / 4
                                                                      : std::max(0, board - usual);
    const int left = std::min(strip.x(), most);
    const int top = std::max(0, std::min(strip.y(), controls_.Picture1->y() - strip.height()));
    strip.setGeometry(left, top, std::max(usual, board - left), strip.height());
}

void StripControl::boardResized()
{
    if (controls_.Scroller->isHidden() || movedByHand_)
        return;
    if (ground_.options.isOn(Setting::ScrollerRndPos)) // chance has said where, once
        fitToBoard();
    else
        PlaceTheMsgScroller();
}

void StripControl::takeWords(const QStringList &words, bool fillEmptyStrip)
{
    Procedure step(ground_.log, "takeWords", "frmMain", Procedure::Silent);
    if (!fillEmptyStrip && controls_.Scroller->ListCount() == 0)
        return;
    step([&] { controls_.Scroller->Clear(); });
    for (const QString &word : words)
        step([&] { controls_.Scroller->AddItem(word); });
}

void StripControl::MsgScroller_HotSpotClick(int Index)
{
    Procedure step(ground_.log, "MsgScroller_HotSpotClick", "frmMain");
    step([&] { LastScrollerWord_ = controls_.Scroller->List(Index); });
}

void StripControl::MsgScroller_MouseDown(QMouseEvent *event)
{
    const bool shift = event->modifiers().testFlag(Qt::ShiftModifier);
    if (event->button() == Qt::LeftButton && shift) {
        ScrollerMoving_ = true;
        movedFrom_ = event->pos();
    } else if (event->button() == Qt::RightButton && !shift &&
               ground_.options.isOn(Setting::ScrollerCanPan)) {
        controls_.Scroller->ToggleScroll();
    }
}

void StripControl::MsgScroller_MouseMove(QMouseEvent *event)
{
    if (ScrollerMoving_ && event->buttons().testFlag(Qt::LeftButton) &&
        event->modifiers().testFlag(Qt::ShiftModifier)) {
        movedByHand_ = true;
        controls_.Scroller->move(controls_.Scroller->pos() + event->pos() - movedFrom_);
    }
}

void StripControl::MsgScroller_MouseUp() { ScrollerMoving_ = false; }
