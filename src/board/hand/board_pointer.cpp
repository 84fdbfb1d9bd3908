// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/hand/board_pointer.h"

#include "board/canvas/canvas.h"
#include "board/hand/board_commands.h"
#include "board/hand/board_focus.h"
#include "board/hand/command_router.h"
#include "board/hand/popup_menu.h"
#include "board/tiles/board_news.h"
#include "platform/clock.h"
#include "platform/gate.h"
#include "platform/ground.h"
#include "platform/options.h"
#include "platform/procedure.h"
#include "platform/sounds.h"
#include "platform/text.h"
#include "widgets/dropper.h"
#include "widgets/finger.h"
#include "widgets/floating_tile.h"
#include "widgets/gradient.h"
#include "widgets/long_press.h"
#include "widgets/main_controls.h"
#include "widgets/picture_box.h"
#include "widgets/press_button.h"

#include <QLabel>
#include <QMouseEvent>

#include <algorithm>
#include <utility>

using command::From;

namespace {

constexpr auto form = "frmMain";
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

BoardPointer::BoardPointer(Ground &ground, const MainControls &controls, const Rooms &rooms)
    : ground_(ground)
    , controls_(controls)
    , rooms_(rooms)
    , store_(rooms.canvas.store())
    , drag_(controls)
{
    LongPress::offer(controls.picCanvas);
    connect(controls.picCanvas, &PictureBox::mouseDown, this, &BoardPointer::onMouseDown);
    connect(controls.picCanvas, &PictureBox::mouseMoved, this, &BoardPointer::onMouseMoved);
    connect(controls.picCanvas, &PictureBox::mouseUp, this, &BoardPointer::onMouseUp);
    connect(&rooms.canvas, &Canvas::wordCheckDragBegins, this,
            [this] { drag_.begin(controls_.picCanvas->mapToGlobal(pressed_)); });
    connect(&ground.gate, &Gate::boxOpens, this, &BoardPointer::letGo);
}

// From events to handlers
// -------------------------------------------------------------------------------------------

void BoardPointer::onMouseDown(QMouseEvent *event)
{
    const bool isLongPress = LongPress::isBehind(*event);
    if (isLongPress && inserted_)
        return; // the key and the press have done their work
    inserted_ = false;
    fingerRests_ = event->button() == Qt::LeftButton && finger::isBehind(*event);
    picCanvas_MouseDown(event->button(), isLongPress ? Qt::NoModifier : event->modifiers(),
                        event->position().toPoint());
}

void BoardPointer::onMouseMoved(QMouseEvent *event)
{
    const QPoint point = event->position().toPoint();
    if (fingerRests_ && (point - pressed_).manhattanLength() <= trembling)
        return;
    fingerRests_ = false;
    picCanvas_MouseMove(event->buttons(), point);
}

void BoardPointer::onMouseUp(QMouseEvent *event)
{
    fingerRests_ = false;
    if (LongPress::takesBack(*event))
        takePressBack();
    else
        picCanvas_MouseUp(event->button(), event->position().toPoint());
}

/// A tile that trembled under the hand lies where it lay, and nothing has moved.
void BoardPointer::takePressBack()
{
    cWortel *tile = store_.current();
    if (tile != nullptr && tileMoved_) {
        tile->setXLeft(takenFrom_.x());
        tile->setYTop(takenFrom_.y());
    }
    tileMoved_ = false;
    letGo();
}

// Pressing
// ----------------------------------------------------------------------------------------------------------

void BoardPointer::picCanvas_MouseDown(Qt::MouseButton button, Qt::KeyboardModifiers shift,
                                       const QPoint &point)
{
    const Gate::Passage passage = ground_.gate.enter(Gate::Way::Play);
    if (!passage)
        return;
    Procedure step{ground_.log, "picCanvas_MouseDown", form};
    pressed_ = point;
    if (isHolding())
        step([&] { letGo(); });
    if (button == Qt::LeftButton)
        step([&] { leftPress(shift & shiftKeys, point); });
    else if (button == Qt::RightButton)
        step([&] { rightPress(shift & shiftKeys, point); });
}

void BoardPointer::leftPress(Qt::KeyboardModifiers shift, const QPoint &point)
{
    const QPoint spot = rooms_.canvas.view().toBoard(point);
    tileMoved_ = rooms_.canvas.CanvasSelectWortel(spot.x(), spot.y());
    rooms_.focus.choose(tileMoved_ ? store_.current() : nullptr);
    if (tileMoved_) {
        takenFrom_ = {store_.current()->xLeft(), store_.current()->yTop()};
        return;
    }
    store_.setCurrent(nullptr);
    if (shift != Qt::NoModifier)
        insertByShift(shift, spot);
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
    inserted_ = true;
    rooms_.commands.insertAt(Press{point, store_.filter().selected(), nullptr, {}, {}}, kind);
    ground_.pump.yield();
}

void BoardPointer::rightPress(Qt::KeyboardModifiers shift, const QPoint &point)
{
    const Press press = rooms_.router.pressAt(rooms_.canvas.view().toBoard(point));
    if (shift == Qt::NoModifier) {
        showMenu(press, controls_.picCanvas->mapToGlobal(point));
    } else if (shift == Qt::ShiftModifier) {
        ground_.log.WriteLog(QStringLiteral("Rightclick + shift: Duplicate object"));
        rooms_.commands.duplicateAt(press);
    } else if (shift == Qt::ControlModifier) {
        ground_.log.WriteLog(QStringLiteral("Rightclick + ctrl: Remove object"));
        rooms_.commands.removeAt(press);
    }
}

void BoardPointer::openMenu(const QPoint &corner)
{
    letGo();
    Press press;
    press.point =
        rooms_.canvas.view().toBoard({store_.measures().ScaleWidth() / 2, store_.measures().BandTop() / 2});
    press.filter = store_.filter().selected();
    showMenu(press, corner);
}

void BoardPointer::showMenu(const Press &press, const QPoint &corner)
{
    const MenuName name = menuOf(press.kind);
    const int index = rooms_.popup.ShowPopupMenu(name, corner);
    if (index <= 0 || ground_.gate.isClosing())
        return;
    const int id = rooms_.popup.model().ItemKey(name, index);
    rooms_.router.run(name == MenuName::MainMenu ? From::MainMenu : From::TileMenu, id, press, index);
}

// Moving
// ------------------------------------------------------------------------------------------------------------

QPoint BoardPointer::farthest() const
{
    const BoardMeasures &window = store_.measures();
    const BoardView &view = rooms_.canvas.view(); // tiles are as small as all else, and so is what they need
    // Under the band a tile could never be taken again, so it ends above it, however high the band is.
    return {window.ScaleWidth() - view.length(rightMargin),
            std::min(window.ScaleHeight() - view.length(lowerMargin),
                     window.BandTop() - view.length(Canvas::heldHeight))};
}

void BoardPointer::picCanvas_MouseMove(Qt::MouseButtons buttons, const QPoint &point)
{
    if (!buttons.testFlag(Qt::LeftButton) || !ground_.gate.letsIn(Gate::Way::Play))
        return;
    if (drag_.isActive()) {
        drag_.moveTo(controls_.picCanvas->mapToGlobal(point));
        return;
    }
    const int x = std::max(0, point.x());
    const int y = std::max(0, point.y());
    const QPoint last = farthest();
    FloatingTile &held = *controls_.BtnMove1;
    cWortel *tile = store_.current();
    if (tile == nullptr || x > last.x() || y > last.y())
        return;
    if (ground_.options.isOn(Setting::MoveableInFilter) && !store_.filter().shows(tile->BGColor))
        return;
    held.move(x, y);
    const QPoint place = rooms_.canvas.view().toBoard(held.pos());
    tile->setXLeft(place.x());
    tile->setYTop(place.y());
}

// Letting go
// --------------------------------------------------------------------------------------------------------

void BoardPointer::picCanvas_MouseUp(Qt::MouseButton button, const QPoint &point)
{
    if (button != Qt::LeftButton || !isHolding())
        return;
    const Gate::Passage passage = ground_.gate.enter(Gate::Way::Play);
    if (!passage)
        return;
    Procedure step{ground_.log, "picCanvas_MouseUp", form};
    if (drag_.isActive()) {
        tileMoved_ = false; // the drag leaves the tile where it lies
        step([&] {
            if (drag_.end(controls_.picCanvas->mapToGlobal(point)))
                Dropper1_DragDrop();
        });
    }
    step([&] { letGo(); });
    step([&] { ground_.pump.yield(); });
}

bool BoardPointer::isHolding() const
{
    return drag_.isActive() || store_.current() != nullptr || !controls_.BtnMove1->isHidden();
}

void BoardPointer::letGo()
{
    if (!isHolding())
        return;
    Procedure step{ground_.log, "letGo", form, Procedure::Silent};
    step([&] { drag_.cancel(); });
    if (cWortel *tile = store_.current())
        tile->Selected = false;
    store_.setCurrent(nullptr);
    controls_.lblMove->hide();
    controls_.BtnMove1->hide();
    step([&] { rooms_.canvas.repaint(); });
    if (std::exchange(tileMoved_, false))
        step([&] { rooms_.news.move(); });
}

void BoardPointer::Dropper1_DragDrop()
{
    Procedure step{ground_.log, "Dropper1_DragDrop", form};
    step([&] { controls_.Dropper1->UnHighlight(); });
    step([&] { putIntoWord(controls_.BtnMove1->Caption()); });
    step([&] { controls_.Dropper1->takeFocus(); });
}

void BoardPointer::putIntoWord(const QString &text)
{
    Dropper &field = *controls_.Dropper1;
    if (!field.isEnabled() || field.isHidden())
        return;
    Procedure step{ground_.log, "putIntoWord", form, Procedure::Silent};
    step([&] { field.setCaption(Trim(field.Caption()) + Trim(text)); });
    rooms_.canvas.setWordCheckDrag(false);
    step([&] { ground_.pump.yield(); });
    step([&] { playSound(ground_, SoundId::TileDropped); });
    step([&] { ground_.pump.yield(); });
    rooms_.canvas.setWordCheckDrag(controls_.Option1[0]->isChecked());
    step([&] { DoOnDrop(); });
}

void BoardPointer::DoOnDrop()
{
    Procedure step{ground_.log, "DoOnDrop", form};
    if (store_.isEmpty())
        return;
    step([&] { rooms_.canvas.repaint(); });
    step([&] { ground_.pump.yield(); });
}
