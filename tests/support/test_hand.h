// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "board/hand/board_commands.h"
#include "board/hand/board_keys.h"
#include "board/hand/board_pointer.h"
#include "board/hand/morpheme_lists.h"
#include "board/hand/popup_menu.h"
#include "support/test_board.h"

#include <QMouseEvent>
#include <QtTest>

#include <optional>

/// A popup menu that is not shown: it notes what it was asked for and chooses the item with the id that the
/// test has set.
class ScriptedMenu : public PopupMenu
{
public:
    using PopupMenu::PopupMenu;

    int choose = 0; ///< id of the item; 0 closes the menu
    int shown = 0;
    std::optional<MenuName> lastName;
    QPoint lastPosition;

    int ShowPopupMenu(MenuName name, const QPoint &position) override
    {
        ++shown;
        lastName = name;
        lastPosition = position;
        return choose == 0 ? 0 : indexOf(model().Restore(name));
    }

private:
    int indexOf(const std::vector<MenuItem> &items) const
    {
        for (const MenuItem &item : items) {
            if (item.id == choose && item.enabled && item.kind == MenuItem::Kind::Command)
                return item.index;
            if (const int below = indexOf(item.children))
                return below;
        }
        return 0;
    }
};

/// A board with the hand that plays on it: commands, menus, pointer and keys.
struct TestHand : TestBoard
{
    explicit TestHand(quint64 seed = 1, const QSize &size = {632, 573})
        : TestBoard(seed, size)
        , morphemeLists(t.ground, controls)
        , menus([this] {
            return MenuFacts{modes, true, QStringLiteral("Wörterbuch")};
        })
        , popup(menus, nullptr)
        , commands(t.ground, controls, lists, modes,
                   {*canvas, *placement, *bulk, *arrangement, morphemeLists, menus})
        , pointer(t.ground, controls, modes, *canvas, commands, popup)
        , keys(t.ground, controls, modes, commands, pointer, popup)
    {
        menus.CreateMenus();
        QObject::connect(&commands, &BoardCommands::committed, &form, [this] { ++commits; });
        QObject::connect(&commands, &BoardCommands::backupWanted, &form, [this] { ++backups; });
        QObject::connect(&commands, &BoardCommands::commandChosen, &form, [this](int id) { chosen << id; });
    }

    MorphemeLists morphemeLists;
    MenuModel menus;
    ScriptedMenu popup;
    BoardCommands commands;
    BoardPointer pointer;
    BoardKeys keys;
    int commits = 0;
    int backups = 0;
    QList<int> chosen;

    void run(command::From from, int id, const QPoint &point = {300, 300})
    {
        commands.run(from, id, commands.pressAt(point));
    }
    void press(const QPoint &point, Qt::MouseButton button = Qt::LeftButton,
               Qt::KeyboardModifiers shift = Qt::NoModifier)
    {
        mouse(QEvent::MouseButtonPress, point, button, button, shift);
    }
    void drag(const QPoint &point)
    {
        mouse(QEvent::MouseMove, point, Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    }
    void release(const QPoint &point, Qt::MouseButton button = Qt::LeftButton)
    {
        mouse(QEvent::MouseButtonRelease, point, button, Qt::NoButton, Qt::NoModifier);
    }
    void click(const QPoint &point, Qt::MouseButton button, Qt::KeyboardModifiers shift = Qt::NoModifier)
    {
        press(point, button, shift);
        release(point, button);
    }

    /// True if every counter says what lies on the board.
    bool countersEqualTiles() const
    {
        int sum = 0;
        for (const TileKind &kind : tileKinds) {
            sum += store->countOf(kind.back);
            if (optTypes->value(kind.filterIndex) != store->countOf(kind.back))
                return false;
        }
        return optTypes->value(TileFilter::all) == sum;
    }

private:
    void mouse(QEvent::Type type, const QPoint &point, Qt::MouseButton button, Qt::MouseButtons buttons,
               Qt::KeyboardModifiers shift)
    {
        QMouseEvent event(type, point, controls.picCanvas->mapToGlobal(point), button, buttons, shift);
        QApplication::sendEvent(controls.picCanvas, &event);
    }
};
