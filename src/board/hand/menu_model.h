// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <array>
#include <cstdint>
#include <functional>
#include <utility>
#include <vector>

class PlayState;
namespace menu {
struct Row;
}

/// The popup menus of the board: one for an empty spot, one for each kind of tile.
enum class MenuName : std::uint8_t { MainMenu, PrefixMenu, WortelMenu, SuffixMenu };
inline constexpr int menuCount = 4;

/// All that the state of a menu item depends on.
struct MenuFacts
{
    const PlayState &play;
    bool useUndo = true;
    bool canUndo = false;
    bool canRedo = false;
    /// The caption of the dictionary's button, which two hints name.
    QString dictionaryButton = QStringLiteral("Wörterbuch");
};

/// One line of a menu that was built: its texts, and its state at the time it was built.
struct MenuItem
{
    enum class Kind : std::uint8_t { Command, Submenu, Heading, Separator };

    int index = 0; ///< from 1, in the order in which the items of a tree were added
    Kind kind = Kind::Command;
    int id = 0; ///< number of the command; 0 for an item that does nothing but close the menu
    QString caption;
    QString hint;  ///< shown at the right
    int icon = -1; ///< number of the picture in the image list, or -1
    bool enabled = true;
    bool checked = false;
    std::vector<MenuItem> children;
    /// The row of a submenu that is brought up to date each time it opens: "Abschreiben", "Aktion" and "S p i
    /// e l e".
    const menu::Row *onOpening = nullptr;
};

using MenuTree = std::vector<MenuItem>;

/// Builds a tree from its table. A disabled item disables what is below it.
MenuTree buildMenu(MenuName name, const MenuFacts &facts);
/// The item with that index, searched through all levels, or nullptr.
const MenuItem *findItem(const MenuTree &tree, int index);

/// The four trees as they were last built. States freeze when the menus are built, so whoever changes a mode
/// calls `CreateMenus`; three submenus catch up by themselves when they open.
class MenuModel
{
public:
    /// `facts` is asked each time when something is built.
    explicit MenuModel(std::function<MenuFacts()> facts)
        : facts_(std::move(facts))
    {}

    /// Builds all four trees from the present modes and settings.
    void CreateMenus();
    const MenuTree &Restore(MenuName name) const { return trees_[static_cast<std::size_t>(name)]; }
    /// Called when the submenu with that index of `MainMenu` opens. Returns true if it was rebuilt.
    bool CP_InitPopupMenu(int index);
    const MenuItem *itemAt(MenuName name, int index) const { return findItem(Restore(name), index); }
    /// The id of an item as a number; 0 if it has none or there is no such item.
    int ItemKey(MenuName name, int index) const;

private:
    std::function<MenuFacts()> facts_;
    std::array<MenuTree, menuCount> trees_;
};
