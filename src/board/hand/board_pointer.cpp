// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/hand/board_pointer.h"

#include "board/canvas/canvas.h"
#include "board/hand/board_commands.h"
#include "board/hand/popup_menu.h"
#include "platform/clock.h"
#include "platform/ground.h"
#include "platform/modes.h"
#include "platform/options.h"
#include "platform/procedure.h"
#include "platform/sound.h"
#include "platform/text.h"
#include "widgets/dropper.h"
#include "widgets/finger.h"
#include "widgets/floating_tile.h"
#include "widgets/gradient.h"
#include "widgets/main_controls.h"
#include "widgets/picture_box.h"
#include "widgets/press_button.h"

#include <QLabel>
#include <QMouseEvent>

#include <algorithm>

using command::From;

namespace {

constexpr auto form = "frmMain";
constexpr int dropSound = 107;
constexpr int trembling = 12; ///< pixels a resting finger may wander

constexpr int wortel = 0;
constexpr int prefix = 1;
constexpr int suffix = 2;

constexpr auto shiftKeys = Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier;

MenuName menuOf(const TileKind *kind)
{
    if (kind == nullptr)
        return MenuName::MainMenu;
    switch (kind->filterIndex) {
    case prefix:
        return MenuName::PrefixMenu;
    case suffix:
        return MenuName::SuffixMenu;
    default:
        return MenuName::WortelMenu;
    }
}

} // namespace

BoardPointer::BoardPointer(Ground &ground, const MainControls &controls, Modes &modes, Canvas &canvas,
                           BoardCommands &commands, PopupMenu &popup)
    : ground_(ground)
    , controls_(controls)
    , modes_(modes)
    , canvas_(canvas)
    , store_(canvas.store())
    , commands_(commands)
    , popup_(popup)
    , drag_(controls)
    , longPress_(this)
{
    longPress_.setSingleShot(true);
    longPress_.setInterval(finger::longPressTime);
    connect(&longPress_, &QTimer::timeout, this, &BoardPointer::onLongPress);
    connect(controls.picCanvas, &PictureBox::mouseDown, this, &BoardPointer::onMouseDown);
    connect(controls.picCanvas, &PictureBox::mouseMoved, this, &BoardPointer::onMouseMoved);
    connect(controls.picCanvas, &PictureBox::mouseUp, this, [this](QMouseEvent *event) {
        longPress_.stop();
        picCanvas_MouseUp(event->button(), event->position().toPoint());
    });
    connect(&canvas, &Canvas::wordCheckDragBegins, this,
            [this] { drag_.begin(controls_.picCanvas->mapToGlobal(pressed_)); });
}

// From events to handlers
// -------------------------------------------------------------------------------------------

void BoardPointer::onMouseDown(QMouseEvent *event)
{
    longPress_.stop();
    const QPoint point = event->position().toPoint();
    const bool waits = event->button() == Qt::LeftButton && finger::isBehind(*event);
    if (waits)
        longPress_.start();
    picCanvas_MouseDown(event->button(), event->modifiers(), point);
}

void BoardPointer::onMouseMoved(QMouseEvent *event)
{
    const QPoint point = event->position().toPoint();
    if (longPress_.isActive()) {
        if ((point - pressed_).manhattanLength() <= trembling)
            return;
        longPress_.stop();
    }
    picCanvas_MouseMove(event->buttons(), point);
}

void BoardPointer::onLongPress()
{
    tileMoved_ = false;
    picCanvas_MouseDown(Qt::RightButton, {}, pressed_);
}

// Pressing
// ----------------------------------------------------------------------------------------------------------

void BoardPointer::picCanvas_MouseDown(Qt::MouseButton button, Qt::KeyboardModifiers shift,
                                       const QPoint &point)
{
    if (!modes_.MoveAllowed)
        return;
    Procedure step{ground_.log, "picCanvas_MouseDown", form};
    pressed_ = point;
    if (!modes_.PlacingBusy)
        modes_.StopPlacing =
            false; // what it should have stopped is over; left on it would disable the release
    if (drag_.isActive() || store_.current() != nullptr)
        step([&] { letGo(); });
    if (button == Qt::LeftButton)
        step([&] { leftPress(shift & shiftKeys, point); });
    else if (button == Qt::RightButton)
        step([&] { rightPress(shift & shiftKeys, point); });
}

void BoardPointer::leftPress(Qt::KeyboardModifiers shift, const QPoint &point)
{
    tileMoved_ = canvas_.CanvasSelectWortel(point.x(), point.y());
    if (tileMoved_)
        return;
    store_.setCurrent(nullptr);
    if (shift != Qt::NoModifier) {
        insertByShift(shift, point);
        return;
    }
    controls_.lblMove->hide();
    controls_.BtnMove1->hide();
    drag_.cancel();
}

void BoardPointer::insertByShift(Qt::KeyboardModifiers shift, const QPoint &point)
{
    int kind = suffix; // Alt with any other key
    if (shift == Qt::ShiftModifier)
        kind = prefix;
    else if (shift == Qt::ControlModifier)
        kind = wortel;
    else if (!shift.testFlag(Qt::AltModifier))
        return;
    longPress_.stop();
    const int filter = store_.filter().selected();
    if (filter == kind || filter == TileFilter::all)
        commands_.insertAt(Press{point, filter, nullptr, {}, {}}, kind);
}

void BoardPointer::rightPress(Qt::KeyboardModifiers shift, const QPoint &point)
{
    const Press press = commands_.pressAt(point);
    store_.setCurrent(nullptr);
    if (shift == Qt::NoModifier) {
        showMenu(press);
    } else if (shift == Qt::ShiftModifier) {
        ground_.log.WriteLog(QStringLiteral("Rightclick + shift: Duplicate object"));
        commands_.duplicateAt(press);
    } else if (shift == Qt::ControlModifier) {
        ground_.log.WriteLog(QStringLiteral("Rightclick + ctrl: Remove object"));
        commands_.removeAt(press);
    }
}

void BoardPointer::showMenu(const Press &press)
{
    const MenuName name = menuOf(press.kind);
    const int index = popup_.ShowPopupMenu(name, controls_.picCanvas->mapToGlobal(press.point));
    if (index <= 0)
        return;
    const int id = popup_.model().ItemKey(name, index);
    commands_.run(name == MenuName::MainMenu ? From::MainMenu : From::TileMenu, id, press, index);
}

// Moving
// ------------------------------------------------------------------------------------------------------------

void BoardPointer::picCanvas_MouseMove(Qt::MouseButtons buttons, const QPoint &point)
{
    if (!buttons.testFlag(Qt::LeftButton))
        return;
    if (drag_.isActive()) {
        drag_.moveTo(controls_.picCanvas->mapToGlobal(point));
        return;
    }
    const int x = std::max(0, point.x());
    const int y = std::max(0, point.y());
    const BoardMeasures &window = store_.measures();
    FloatingTile &held = *controls_.BtnMove1;
    // Under the band a tile could never be taken again, so it ends above it, however high the band is.
    const int lowest = std::min(window.ScaleHeight() - lowerMargin, controls_.Picture1->y() - held.height());
    if (x > window.ScaleWidth() - rightMargin || y > lowest)
        return;
    cWortel *tile = store_.current();
    if (tile == nullptr || !modes_.MoveAllowed)
        return;
    if (ground_.options.isOn(Setting::MoveableInFilter) && !store_.filter().shows(tile->BGColor))
        return;
    held.move(x, y);
    tile->setXLeft(held.x());
    tile->setYTop(held.y());
}

// Letting go
// --------------------------------------------------------------------------------------------------------

void BoardPointer::picCanvas_MouseUp(Qt::MouseButton button, const QPoint &point)
{
    if (button != Qt::LeftButton)
        return;
    Procedure step{ground_.log, "picCanvas_MouseUp", form};
    if (drag_.isActive()) {
        tileMoved_ = false; // the drag leaves the tile where it lies
        step([&] {
            if (drag_.end(controls_.picCanvas->mapToGlobal(point)))
                Dropper1_DragDrop();
        });
    }
    if (modes_.StopPlacing)
        return;
    step([&] { letGo(); });
    step([&] {
        if (tileMoved_ && ground_.options.storedIsOn(Setting::UseBackup)) {
            tileMoved_ = false;
            commands_.backUp();
        }
    });
}

void BoardPointer::letGo()
{
    Procedure step{ground_.log, "picCanvas_MouseUp", form, Procedure::Silent};
    step([&] { drag_.cancel(); });
    step([&] { canvas_.redrawFiltered(); });
    step([&] {
        store_.setCurrent(nullptr);
        controls_.lblMove->hide();
        controls_.BtnMove1->hide();
    });
    step([&] { canvas_.CanvasUnSelectAllWortel(); });
    step([&] { ground_.pump.yield(); });
}

void BoardPointer::cancelDrag()
{
    if (!drag_.isActive())
        return;
    tileMoved_ = false;
    letGo();
}

void BoardPointer::Dropper1_DragDrop()
{
    Procedure step{ground_.log, "Dropper1_DragDrop", form};
    Dropper &field = *controls_.Dropper1;
    step([&] { field.UnHighlight(); });
    step([&] { field.setCaption(Trim(field.Caption()) + Trim(controls_.BtnMove1->Caption())); });
    modes_.WordCheckDrag = false;
    step([&] { ground_.pump.yield(); });
    // The drop sound hangs on the setting of another sound; it has always been so.
    if (ground_.options.box(Setting::GameSoundOnTimeOut) == 1) {
        step([&] { ground_.sound.PlayResourceSound(dropSound); });
        step([&] { ground_.pump.yield(); });
    }
    modes_.WordCheckDrag = controls_.Option1[0]->isChecked();
    step([&] { DoOnDrop(); });
}

void BoardPointer::DoOnDrop()
{
    Procedure step{ground_.log, "DoOnDrop", form};
    if (store_.isEmpty())
        return;
    const int filter = store_.filter().selected();
    step([&] { canvas_.CanvasRedrawAll(); });
    step([&] { store_.filter().select(TileFilter::all); });
    step([&] { store_.filter().select(filter); });
}
