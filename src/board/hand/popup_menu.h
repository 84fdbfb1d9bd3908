// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "board/hand/menu_model.h"

#include <QHash>
#include <QIcon>

#include <functional>
#include <memory>

class Gate;
class MenuStyle;
class QMenu;
class QPoint;
class QWidget;

/// The menu object `CP`: shows a tree of the menu model as a popup menu and tells what was chosen. It is
/// worked with mouse, finger or keys and always stays inside the screen. The press that opened it chooses
/// nothing, however the hand moves until it lets go.
class PopupMenu
{
public:
    PopupMenu(Gate &gate, MenuModel &model, QWidget *owner);
    ~PopupMenu();

    MenuModel &model() { return model_; }

    /// Shows the menu modally with its corner at `position` (pixels of the screen), or as near to it as the
    /// screen lets it lie, and returns the index of the chosen item, 0 for none.
    int ShowPopupMenu(MenuName name, const QPoint &position);
    using Chooser = std::function<int(MenuName, const QPoint &)>;
    /// Chooses in place of a hand, without showing a menu.
    void chooseBy(Chooser chooser) { chooser_ = std::move(chooser); }

    /// The menu as a window that is not yet shown, for whoever wants to show it in another way.
    std::unique_ptr<QMenu> makeMenu(MenuName name);

private:
    void fill(QMenu &menu, MenuName name, const std::vector<MenuItem> &items);
    void addSubmenu(QMenu &menu, MenuName name, const MenuItem &item);
    void fitRows(const QPoint &position, std::size_t rows);
    QIcon icon(int number);

    Gate &gate_;
    MenuModel &model_;
    QWidget *owner_;
    Chooser chooser_;
    std::unique_ptr<MenuStyle> style_;
    QHash<int, QIcon> icons_; ///< one of each for all menus, which is drawn but once
};
