// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/hand/tile_keys.h"

#include "board/canvas/canvas.h"
#include "board/hand/board_focus.h"
#include "board/hand/board_pointer.h"
#include "board/hand/command_router.h"
#include "board/tiles/board_news.h"
#include "platform/gate.h"
#include "platform/ground.h"
#include "widgets/main_controls.h"
#include "widgets/picture_box.h"
#include "widgets/press_button.h"

#include <QKeyEvent>
#include <QScreen>

#include <algorithm>
#include <utility>

using command::From;
using Go = BoardFocus::Go;

namespace {

constexpr int step = 10;    ///< pixels that Ctrl and an arrow move a tile
constexpr int fineStep = 1; ///< with the shift key, too
constexpr int editCommand = 104;
constexpr int removeCommand = 105;
constexpr int checkCommand = 601;

struct Step
{
    int key;
    Go go;
    QPoint move; ///< the direction, for the keys that have one
};

constexpr Step stepKeys[] = {
    {Qt::Key_Left, Go::Left, {-1, 0}},  {Qt::Key_Right, Go::Right, {1, 0}}, {Qt::Key_Up, Go::Up, {0, -1}},
    {Qt::Key_Down, Go::Down, {0, 1}},   {Qt::Key_Home, Go::First, {}},      {Qt::Key_End, Go::Last, {}},
    {Qt::Key_PageUp, Go::Previous, {}}, {Qt::Key_PageDown, Go::Next, {}},
};

bool isEnter(int key) { return key == Qt::Key_Return || key == Qt::Key_Enter; }

bool opensMenu(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Menu ||
           (event.key() == Qt::Key_F10 && event.modifiers().testFlag(Qt::ShiftModifier));
}

/// A coordinate moved by `by`, within what is seen; a tile that lies beyond comes back.
int moved(int from, int by, int first, int last)
{
    return by == 0 ? from : std::clamp(from + by, first, std::max(first, last));
}

} // namespace

TileKeys::TileKeys(Ground &ground, const MainControls &controls, const Rooms &rooms)
    : ground_(ground)
    , controls_(controls)
    , rooms_(rooms)
{}

bool TileKeys::press(const QKeyEvent &event)
{
    if (event.modifiers().testFlag(Qt::AltModifier))
        return false;
    return steps(event) || acts(event);
}

bool TileKeys::steps(const QKeyEvent &event)
{
    const auto found = std::find_if(std::begin(stepKeys), std::end(stepKeys),
                                    [&](const Step &row) { return row.key == event.key(); });
    if (found == std::end(stepKeys))
        return false;
    controls_.picCanvas->setFocus(Qt::OtherFocusReason); // the window itself may have had it
    const bool moves = event.modifiers().testFlag(Qt::ControlModifier);
    const Gate::Passage passage = ground_.gate.enter(moves ? Gate::Way::Play : Gate::Way::Look);
    if (!passage)
        return true;
    if (moves && rooms_.focus.isSeen()) {
        move(found->move * (event.modifiers().testFlag(Qt::ShiftModifier) ? fineStep : step));
    } else if (!moves) {
        rooms_.pointer.letGo();
        endRun();
        rooms_.focus.go(found->go);
    }
    rooms_.focus.setByKeys(true);
    return true;
}

bool TileKeys::acts(const QKeyEvent &event)
{
    const bool enters = isEnter(event.key());
    const bool checks = enters && event.modifiers().testFlag(Qt::ControlModifier);
    const bool puts = !checks && (enters || event.key() == Qt::Key_Space);
    const bool menu = opensMenu(event);
    if (!checks && !puts && !menu && event.key() != Qt::Key_Delete && event.key() != Qt::Key_F2)
        return false;
    controls_.picCanvas->setFocus(Qt::OtherFocusReason);
    const Gate::Passage passage = ground_.gate.enter(Gate::Way::Play);
    if (!passage || event.isAutoRepeat())
        return true;
    rooms_.pointer.letGo();
    endRun();
    const bool wasSeen = rooms_.focus.isSeen();
    rooms_.focus.setByKeys(true);
    if (menu)
        openMenu();
    else if (checks)
        checkWord();
    else if (!wasSeen)
        return true;
    else if (puts)
        putIntoWord();
    else
        runOnTile(event.key() == Qt::Key_F2 ? editCommand : removeCommand);
    return true;
}

void TileKeys::move(QPoint by)
{
    const int index = rooms_.focus.index();
    if (index < 0 || by.isNull())
        return;
    rooms_.pointer.letGo();
    cWortel &tile = *rooms_.canvas.store().tiles()[static_cast<std::size_t>(index)];
    const QPoint before(tile.xLeft(), tile.yTop());
    const BoardView &view = rooms_.canvas.view();
    const QPoint first = view.toBoard({0, 0});
    const QPoint last = view.toBoard(rooms_.pointer.farthest());
    tile.setXLeft(moved(before.x(), by.x(), first.x(), last.x()));
    tile.setYTop(moved(before.y(), by.y(), first.y(), last.y()));
    if (QPoint(tile.xLeft(), tile.yTop()) == before)
        return;
    moved_ = true;
    rooms_.canvas.repaint();
}

void TileKeys::endRun()
{
    if (std::exchange(moved_, false))
        rooms_.news.move();
}

/// As a drag to the word field does, and only where one could be made.
void TileKeys::putIntoWord()
{
    if (rooms_.canvas.WordCheckDrag() || controls_.Option1[0]->isEnabled())
        rooms_.pointer.putIntoWord(rooms_.focus.press().text);
}

void TileKeys::checkWord()
{
    if (controls_.Command2->isEnabled())
        rooms_.router.run(From::MainMenu, checkCommand, rooms_.focus.press());
}

void TileKeys::openMenu()
{
    const Press press = rooms_.focus.press();
    if (press.kind != nullptr) {
        const QRect tile = rooms_.canvas.view().toCanvas(rooms_.focus.frame());
        rooms_.pointer.showMenu(press, controls_.picCanvas->mapToGlobal(tile.bottomLeft()));
        return;
    }
    const QSize rest = (controls_.form->screen()->size() - controls_.picCanvas->size()) / 2;
    rooms_.pointer.showMenu(press, {rest.width(), rest.height()});
}

void TileKeys::runOnTile(int command)
{
    rooms_.router.run(From::TileMenu, command, rooms_.focus.press());
    if (rooms_.focus.chosen() == nullptr && !ground_.gate.isClosing())
        rooms_.focus.chooseNearest();
}
