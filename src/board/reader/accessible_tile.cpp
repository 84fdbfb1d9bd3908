// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/reader/accessible_tile.h"

#include "board/canvas/board_view.h"
#include "board/reader/board_reader.h"
#include "board/reader/spoken_tile.h"
#include "widgets/picture_box.h"

using namespace Qt::StringLiterals;

const cWortel *AccessibleTile::present() const { return reader_.has(tile_) ? tile_ : nullptr; }

bool AccessibleTile::isValid() const { return present() != nullptr || reader_.isLeaving(tile_); }

QWindow *AccessibleTile::window() const { return reader_.board().window()->windowHandle(); }

QAccessibleInterface *AccessibleTile::parent() const
{
    return QAccessible::queryAccessibleInterface(&reader_.board());
}

QString AccessibleTile::text(QAccessible::Text kind) const
{
    if (present() == nullptr)
        return {};
    switch (kind) {
    case QAccessible::Name:
        return spoken_tile::name(*tile_);
    case QAccessible::Description:
        return spoken_tile::place(reader_.view().toCanvas(tile_->box()), reader_.board().size());
    default:
        return {};
    }
}

QRect AccessibleTile::rect() const
{
    if (present() == nullptr)
        return {};
    const QRect box = reader_.view().toCanvas(tile_->box());
    return {reader_.board().mapToGlobal(box.topLeft()), box.size()};
}

QAccessible::State AccessibleTile::state() const
{
    QAccessible::State state;
    state.invalid = present() == nullptr;
    if (state.invalid)
        return state;
    state.focusable = true;
    state.focused = reader_.hasKeyboard(tile_);
    state.selectable = true;
    state.selected = tile_->Selected || reader_.isChosen(tile_); // in a hand, or the keys' own
    state.movable = true;
    state.invisible = !reader_.board().isVisible();
    return state;
}

void *AccessibleTile::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface *>(this) : nullptr;
}

QStringList AccessibleTile::actionNames() const
{
    return present() != nullptr ? QStringList{pressAction(), showMenuAction(), setFocusAction()}
                                : QStringList();
}

QString AccessibleTile::localizedActionDescription(const QString &action) const
{
    return action == pressAction()      ? u"In das Wortfeld setzen"_s
           : action == showMenuAction() ? u"Menü des Bausteins zeigen"_s
                                        : qAccessibleLocalizedActionDescription(action);
}

void AccessibleTile::doAction(const QString &action)
{
    if (action == pressAction())
        reader_.press(tile_, Qt::Key_Return);
    else if (action == showMenuAction())
        reader_.press(tile_, Qt::Key_Menu);
    else if (action == setFocusAction())
        reader_.choose(tile_);
}

QStringList AccessibleTile::keyBindingsForAction(const QString &action) const
{
    return action == pressAction()      ? QStringList{u"Return"_s}
           : action == showMenuAction() ? QStringList{u"Menu"_s}
                                        : QStringList();
}
