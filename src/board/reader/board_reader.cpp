// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/reader/board_reader.h"

#include "board/canvas/canvas.h"
#include "board/hand/board_focus.h"
#include "board/reader/accessible_board.h"
#include "board/reader/accessible_tile.h"
#include "board/reader/spoken_tile.h"
#include "widgets/announce.h"
#include "widgets/dropper.h"
#include "widgets/main_controls.h"
#include "widgets/picture_box.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTimer>

#include <algorithm>
#include <unordered_set>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

void tell(QAccessibleInterface *about, QAccessible::Event type)
{
    QAccessibleEvent event(about, type);
    QAccessible::updateAccessibility(&event);
}

} // namespace

BoardReader::BoardReader(const MainControls &controls, Canvas &canvas, BoardFocus &focus)
    : controls_(controls)
    , canvas_(canvas)
    , store_(canvas.store())
    , focus_(focus)
{
    board().setSpeaker([this] { return new AccessibleBoard(*this); });
    board().installEventFilter(this);
    connect(&canvas, &Canvas::drawn, this, &BoardReader::onDrawn);
    connect(&canvas, &Canvas::picked, this, &BoardReader::onPicked);
    connect(&focus, &BoardFocus::changed, this, &BoardReader::tellFocus);
    connect(controls.Dropper1, &Dropper::captionChanged, this, &BoardReader::onWord);
}

/// The board is still there, but nobody speaks for its tiles any more.
BoardReader::~BoardReader()
{
    board().setSpeaker({});
    for (const auto &[tile, known] : known_)
        QAccessible::deleteAccessibleInterface(known.id);
    known_.clear();
}

PictureBox &BoardReader::board() const { return *controls_.picCanvas; }

// The tree -----------------------------------------------------------------------------------------

const BoardView &BoardReader::view() const { return canvas_.view(); }

bool BoardReader::has(const cWortel *tile) const
{
    const TileList &tiles = store_.tiles();
    const auto found =
        std::find_if(tiles.begin(), tiles.end(), [tile](const auto &other) { return other.get() == tile; });
    return found != tiles.end() && store_.filter().shows((*found)->BGColor);
}

QAccessibleInterface *BoardReader::interfaceOf(const cWortel *tile)
{
    if (const auto known = known_.find(tile); known != known_.end())
        return QAccessible::accessibleInterface(known->second.id);
    auto *made = new AccessibleTile(*this, tile);
    known_[tile] = {QAccessible::registerAccessibleInterface(made), {tile->xLeft(), tile->yTop()}, tile->txt};
    return made;
}

const cWortel *BoardReader::chosen() const { return focus_.chosen(); }

bool BoardReader::hasKeyboard(const cWortel *tile) const { return board().hasFocus() && isChosen(tile); }

// What a reader does -------------------------------------------------------------------------------

void BoardReader::choose(const cWortel *tile)
{
    if (!has(tile))
        return;
    focus_.choose(tile);
    board().setFocus(Qt::OtherFocusReason);
    focus_.setByKeys(true);
}

void BoardReader::press(const cWortel *tile, Qt::Key key)
{
    QTimer::singleShot(0, this, [this, tile, key] {
        if (!has(tile) || QApplication::activeModalWidget() != nullptr ||
            QApplication::activePopupWidget() != nullptr)
            return;
        choose(tile);
        if (!board().hasFocus())
            return;
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, Qt::NoModifier);
            QCoreApplication::sendEvent(&board(), &event);
        }
    });
}

// What a reader hears ------------------------------------------------------------------------------

void BoardReader::onDrawn()
{
    if (held_ != nullptr)
        tellDropped();
    if (known_.empty())
        return;
    forgetGone();
    tellMoved();
    if (listed_ && QAccessible::isActive())
        tellNew();
}

void BoardReader::forgetGone()
{
    std::unordered_set<const cWortel *> tiles;
    for (const cWortel *tile : shown())
        tiles.insert(tile);
    for (auto known = known_.begin(); known != known_.end();) {
        if (tiles.contains(known->first)) {
            ++known;
            continue;
        }
        const QAccessible::Id id = known->second.id;
        leaving_ = known->first;
        known = known_.erase(known);
        tell(QAccessible::accessibleInterface(id), QAccessible::ObjectDestroyed);
        QAccessible::deleteAccessibleInterface(id);
    }
    leaving_ = nullptr;
}

/// A tile whose place in the memory another one has taken is told as one of a new name.
void BoardReader::tellMoved()
{
    for (auto &[tile, known] : known_) {
        const QPoint place(tile->xLeft(), tile->yTop());
        QAccessibleInterface *interface = QAccessible::accessibleInterface(known.id);
        if (std::exchange(known.place, place) != place)
            tell(interface, QAccessible::LocationChanged);
        if (std::exchange(known.text, tile->txt) != tile->txt)
            tell(interface, QAccessible::NameChanged);
    }
}

void BoardReader::tellNew()
{
    for (const cWortel *tile : shown())
        if (!known_.contains(tile))
            tell(interfaceOf(tile), QAccessible::ObjectCreated);
}

void BoardReader::onPicked()
{
    held_ = store_.current();
    if (held_ == nullptr || !QAccessible::isActive())
        return;
    heldName_ = spoken_tile::name(*held_);
    QAccessible::State changed;
    changed.selected = true;
    QAccessibleStateChangeEvent event(interfaceOf(held_), changed);
    QAccessible::updateAccessibility(&event);
    announce(board(), u"Aufgenommen: "_s + heldName_);
}

void BoardReader::tellDropped()
{
    const bool lies = has(held_);
    if (lies && held_->Selected)
        return; // still in the hand
    const cWortel *tile = std::exchange(held_, nullptr);
    if (!lies || !QAccessible::isActive())
        return;
    QAccessible::State changed;
    changed.selected = true;
    QAccessibleStateChangeEvent event(interfaceOf(tile), changed);
    QAccessible::updateAccessibility(&event);
    announce(board(), u"Abgelegt: %1, %2"_s.arg(
                          heldName_, spoken_tile::place(view().toCanvas(tile->box()), board().size())));
}

void BoardReader::tellFocus()
{
    if (!QAccessible::isActive() || !board().hasFocus())
        return;
    if (const cWortel *tile = chosen())
        tell(interfaceOf(tile), QAccessible::Focus);
}

bool BoardReader::eventFilter(QObject *watched, QEvent *event)
{
    // Behind Qt's own word that the board has the keyboard.
    if (event->type() == QEvent::FocusIn && QAccessible::isActive())
        QTimer::singleShot(0, this, &BoardReader::tellFocus);
    return QObject::eventFilter(watched, event);
}

void BoardReader::onWord(const QString &word)
{
    if (!word.isEmpty() && !controls_.Dropper1->isActiveControl())
        announce(*controls_.form, u"Wort: "_s + word);
}
