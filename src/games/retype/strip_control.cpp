// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "games/retype/strip_control.h"

#include "board/canvas/scroller_place.h"
#include "platform/ground.h"
#include "platform/options.h"
#include "platform/procedure.h"
#include "platform/text.h"
#include "widgets/main_controls.h"
#include "widgets/msg_scroller.h"

#include <QMouseEvent>

namespace {

constexpr int gapBlanks = 36;
constexpr int tickInterval = 125;

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
    step([&] { placeOverBoard(controls_, ground_.options, ground_.rnd, *controls_.Scroller); });
    controls_.Scroller->raise();
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
        event->modifiers().testFlag(Qt::ShiftModifier))
        controls_.Scroller->move(controls_.Scroller->pos() + event->pos() - movedFrom_);
}

void StripControl::MsgScroller_MouseUp() { ScrollerMoving_ = false; }
