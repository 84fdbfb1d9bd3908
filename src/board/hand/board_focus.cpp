// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/hand/board_focus.h"

#include "board/canvas/canvas.h"
#include "widgets/main_controls.h"
#include "widgets/picture_box.h"

#include <QFocusEvent>

#include <algorithm>
#include <limits>
#include <tuple>

namespace {

/// The free pixels between two stretches, 0 if they overlap.
int gap(int from, int to, int otherFrom, int otherTo)
{
    return std::max({0, otherFrom - to, from - otherTo});
}

/// How far a step in that direction is to another tile: what lies straight ahead is nearer than what lies
/// aside. Nothing for a tile that lies far more beside than ahead.
std::optional<int> stepTo(const QRect &from, const QRect &to, BoardFocus::Go where)
{
    using Go = BoardFocus::Go;
    const bool level = where == Go::Left || where == Go::Right;
    const QPoint way = to.center() - from.center();
    const int forward = level ? way.x() : way.y();
    const int ahead = where == Go::Left || where == Go::Up ? -forward : forward;
    const int aside = level ? gap(from.top(), from.bottom(), to.top(), to.bottom())
                            : gap(from.left(), from.right(), to.left(), to.right());
    if (ahead <= 0 || aside > 2 * ahead)
        return {};
    return ahead + 3 * aside;
}

bool comesBefore(const cWortel *one, const cWortel *other)
{
    return std::tuple(one->yTop(), one->xLeft()) < std::tuple(other->yTop(), other->xLeft());
}

} // namespace

BoardFocus::BoardFocus(const MainControls &controls, Canvas &canvas)
    : controls_(controls)
    , canvas_(canvas)
    , store_(canvas.store())
{
    connect(&canvas, &Canvas::drawn, this, &BoardFocus::findAgain);
    controls.picCanvas->installEventFilter(this);
}

// The choice ---------------------------------------------------------------------------------------

int BoardFocus::index() const
{
    if (tile_ == nullptr)
        return -1;
    const TileList &tiles = store_.tiles();
    const auto found =
        std::find_if(tiles.begin(), tiles.end(), [this](const auto &tile) { return tile.get() == tile_; });
    const bool is = found != tiles.end() && store_.filter().shows((*found)->BGColor);
    return is ? static_cast<int>(found - tiles.begin()) : -1;
}

const cWortel *BoardFocus::chosen() const { return index() < 0 ? nullptr : tile_; }

void BoardFocus::choose(const cWortel *tile)
{
    mark(tile);
    showFrame();
}

/// Tells it if anything is new.
void BoardFocus::mark(const cWortel *tile)
{
    const Mark now = tile == nullptr ? mark_ : Mark{{tile->xLeft(), tile->yTop()}, tile->BGColor, tile->txt};
    const bool isNew = tile != tile_ || now != mark_;
    tile_ = tile;
    mark_ = now;
    if (isNew)
        emit changed();
}

/// The board has been drawn: whatever has changed it is done.
void BoardFocus::findAgain()
{
    if (tile_ == nullptr)
        return;
    const TileList &tiles = store_.tiles();
    const auto find = [&tiles](auto isIt) -> const cWortel * {
        const auto found = std::find_if(tiles.begin(), tiles.end(), [&](const auto &t) { return isIt(*t); });
        return found == tiles.end() ? nullptr : found->get();
    };
    const auto sameKind = [this](const cWortel &t) {
        return t.BGColor == mark_.back && store_.filter().shows(t.BGColor);
    };
    const auto samePlace = [&](const cWortel &t) {
        return sameKind(t) && QPoint(t.xLeft(), t.yTop()) == mark_.place;
    };
    const cWortel *again =
        find([&](const cWortel &t) { return &t == tile_ && sameKind(t) && t.txt == mark_.text; });
    if (again == nullptr)
        again = find([&](const cWortel &t) { return samePlace(t) && t.txt == mark_.text; });
    if (again == nullptr)
        again = find(samePlace);
    choose(again);
}

// Going about --------------------------------------------------------------------------------------

bool BoardFocus::go(Go where)
{
    const bool inOrderOfReading =
        where == Go::First || where == Go::Last || where == Go::Previous || where == Go::Next;
    if (!inOrderOfReading && chosen() == nullptr)
        return chooseNearest();
    const cWortel *next = inOrderOfReading ? inOrder(where) : nearest(where);
    if (next != nullptr)
        choose(next);
    return next != nullptr;
}

const cWortel *BoardFocus::nearest(Go where) const
{
    const QRect from = frame();
    const cWortel *best = nullptr;
    int shortest = std::numeric_limits<int>::max();
    for (const cWortel *tile : store_.shown())
        if (const std::optional<int> step = stepTo(from, tile->box(), where); step && *step < shortest) {
            shortest = *step;
            best = tile;
        }
    return best;
}

/// Reaches tiles that lie exactly on each other, too.
const cWortel *BoardFocus::inOrder(Go where) const
{
    std::vector<const cWortel *> tiles = store_.shown();
    if (tiles.empty())
        return nullptr;
    std::stable_sort(tiles.begin(), tiles.end(), comesBefore);
    const auto now = std::find(tiles.begin(), tiles.end(), tile_);
    if (where == Go::First || (where == Go::Next && now == tiles.end()))
        return tiles.front();
    if (where == Go::Last || (where == Go::Previous && now == tiles.end()))
        return tiles.back();
    if (where == Go::Next)
        return now + 1 == tiles.end() ? nullptr : *(now + 1);
    return now == tiles.begin() ? nullptr : *(now - 1);
}

bool BoardFocus::chooseNearest()
{
    const auto far = [this](const cWortel *tile) {
        return (QPoint(tile->xLeft(), tile->yTop()) - mark_.place).manhattanLength();
    };
    const std::vector<const cWortel *> tiles = store_.shown();
    const auto found = std::min_element(tiles.begin(), tiles.end(), [&](const auto *one, const auto *other) {
        return far(one) < far(other);
    });
    choose(found == tiles.end() ? nullptr : *found);
    return found != tiles.end();
}

// What is seen of it -------------------------------------------------------------------------------

QRect BoardFocus::frame() const
{
    const cWortel *tile = chosen();
    return tile == nullptr ? QRect() : tile->box();
}

Press BoardFocus::press() const
{
    const int filter = store_.filter().selected();
    if (const cWortel *tile = chosen())
        return {
            frame().center(), filter, kindOfColour(tile->BGColor), tile->txt, {tile->xLeft(), tile->yTop()}};
    const BoardMeasures &window = store_.measures();
    return {QPoint(window.ScaleWidth(), window.BandTop()) / 2, filter, nullptr, {}, {}};
}

void BoardFocus::setByKeys(bool byKeys)
{
    byKeys_ = byKeys;
    showFrame();
}

bool BoardFocus::isSeen() const { return byKeys_ && controls_.picCanvas->hasFocus() && chosen() != nullptr; }

void BoardFocus::showFrame()
{
    controls_.picCanvas->setFrame(isSeen() ? canvas_.view().toCanvas(frame()) : QRect());
}

bool BoardFocus::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        const bool byTab = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason;
        if (event->type() == QEvent::FocusIn && byTab) {
            byKeys_ = true;
            if (chosen() == nullptr)
                chooseNearest();
        }
        showFrame();
    }
    return QObject::eventFilter(watched, event);
}
