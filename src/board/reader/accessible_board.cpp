// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/reader/accessible_board.h"

#include "board/canvas/board_view.h"
#include "board/reader/accessible_tile.h"
#include "board/reader/board_reader.h"
#include "widgets/picture_box.h"

#include <algorithm>

using namespace Qt::StringLiterals;

AccessibleBoard::AccessibleBoard(BoardReader &reader)
    : QAccessibleWidget(&reader.board(), QAccessible::List)
    , reader_(reader)
{}

int AccessibleBoard::childCount() const
{
    reader_.setListed();
    return static_cast<int>(reader_.shown().size()) + QAccessibleWidget::childCount();
}

QAccessibleInterface *AccessibleBoard::child(int index) const
{
    reader_.setListed();
    const std::vector<const cWortel *> tiles = reader_.shown();
    const int count = static_cast<int>(tiles.size());
    if (index < 0 || index >= count)
        return QAccessibleWidget::child(index - count);
    return reader_.interfaceOf(tiles[static_cast<std::size_t>(index)]);
}

int AccessibleBoard::indexOfChild(const QAccessibleInterface *child) const
{
    const std::vector<const cWortel *> tiles = reader_.shown();
    const auto *tile = dynamic_cast<const AccessibleTile *>(child);
    if (tile == nullptr) {
        const int behind = QAccessibleWidget::indexOfChild(child);
        return behind < 0 ? behind : behind + static_cast<int>(tiles.size());
    }
    const auto found = std::find(tiles.begin(), tiles.end(), tile->tile());
    return found == tiles.end() ? -1 : static_cast<int>(found - tiles.begin());
}

/// Of tiles that overlap, the one that a press would take.
QAccessibleInterface *AccessibleBoard::childAt(int x, int y) const
{
    const QPoint point = reader_.view().toBoard(reader_.board().mapFromGlobal(QPoint(x, y)));
    for (const cWortel *tile : reader_.shown())
        if (tile->Inside(point.x(), point.y()))
            return reader_.interfaceOf(tile);
    return nullptr;
}

QAccessibleInterface *AccessibleBoard::focusChild() const
{
    const cWortel *tile = reader_.chosen();
    return tile != nullptr && reader_.board().hasFocus() ? reader_.interfaceOf(tile)
                                                         : QAccessibleWidget::focusChild();
}

QString AccessibleBoard::text(QAccessible::Text kind) const
{
    if (kind != QAccessible::Description)
        return QAccessibleWidget::text(kind);
    const auto count = reader_.shown().size();
    return count == 1 ? u"1 Baustein"_s : u"%1 Bausteine"_s.arg(count);
}
