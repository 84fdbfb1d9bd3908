// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/hand/menu_model.h"

#include "board/hand/menu_table.h"
#include "platform/play_state.h"

#include <algorithm>
#include <span>

using menu::Opens;
using menu::Row;
using menu::Rule;
using Rows = std::span<const Row>;

namespace {

/// The source of the words that are being retyped; `Always` if none are.
Rule runningRetype(const PlayState &play)
{
    if (play.RetypeUserWords())
        return Rule::RetypeUser;
    if (play.RetypeRandomWords())
        return Rule::RetypeRandom;
    if (play.RetypePseudoWords())
        return Rule::RetypePseudo;
    return play.RetypeChosenWords() ? Rule::RetypeChosen : Rule::Always;
}

bool isEnabled(Rule rule, const MenuFacts &facts)
{
    const PlayState &play = facts.play;
    switch (rule) {
    case Rule::Always:
    case Rule::Klotar:
        return true;
    case Rule::NoGame:
        return !play.GameActive();
    case Rule::NoRetype:
        return !play.RetypeActive();
    case Rule::NoGameNoRetype:
        return !play.GameActive() && !play.RetypeActive();
    case Rule::Undo:
        return facts.useUndo;
    case Rule::StepBack:
        return facts.canUndo;
    case Rule::StepForward:
        return facts.canRedo;
    case Rule::RetypeUser:
    case Rule::RetypeRandom:
    case Rule::RetypePseudo:
    case Rule::RetypeChosen:
        return !play.RetypeActive() || rule == runningRetype(play);
    }
    return true;
}

bool isChecked(Rule rule, const PlayState &play)
{
    switch (rule) {
    case Rule::Klotar:
        return play.GameActive() && !play.GameShortVowels() && !play.GameLongVowels();
    case Rule::RetypeUser:
    case Rule::RetypeRandom:
    case Rule::RetypePseudo:
    case Rule::RetypeChosen:
        return play.RetypeActive() && rule == runningRetype(play);
    default:
        return false;
    }
}

MenuItem makeItem(const Row &row, bool parentEnabled, const MenuFacts &facts)
{
    MenuItem item;
    const QStringView caption(row.caption);
    const bool isLine = caption.startsWith(u'-');
    if (isLine)
        item.kind = caption.size() > 1 ? MenuItem::Kind::Heading : MenuItem::Kind::Separator;
    else if (row.effect.opens != Opens::Nothing)
        item.kind = MenuItem::Kind::Submenu;
    item.id = row.effect.id;
    item.caption = caption.mid(isLine ? 1 : 0).toString();
    item.hint = QString::fromUtf16(row.hint).replace(u'%', facts.dictionaryButton);
    item.icon = row.icon;
    item.enabled = parentEnabled && isEnabled(row.rule, facts);
    item.checked = isChecked(row.rule, facts.play);
    if (row.effect.opens == Opens::FreshSubmenu || row.effect.opens == Opens::RetypeSources)
        item.onOpening = &row;
    return item;
}

/// Appends the rows from `position` on that lie at `level` or deeper to `items` and returns the position
/// behind them.
std::size_t addRows(std::vector<MenuItem> &items, Rows rows, std::size_t position, int level,
                    bool parentEnabled, const MenuFacts &facts, int &lastIndex)
{
    while (position < rows.size() && rows[position].level >= level) {
        MenuItem &item = items.emplace_back(makeItem(rows[position], parentEnabled, facts));
        item.index = ++lastIndex;
        ++position;
        if (item.kind == MenuItem::Kind::Submenu)
            position = addRows(item.children, rows, position, level + 1, item.enabled, facts, lastIndex);
    }
    return position;
}

/// What the submenu of `row` shows when it opens.
std::vector<MenuItem> childrenOnOpening(const Row &row, bool enabled, const MenuFacts &facts)
{
    Rows rows(menu::retypeMenu);
    if (row.effect.opens == Opens::FreshSubmenu)
        rows = Rows(&row + 1, std::end(menu::mainMenu));
    std::vector<MenuItem> children;
    int lastIndex = 0;
    addRows(children, rows, 0, rows.front().level, enabled, facts, lastIndex);
    return children;
}

int lastIndexOf(const std::vector<MenuItem> &items)
{
    int last = 0;
    for (const MenuItem &item : items)
        last = std::max({last, item.index, lastIndexOf(item.children)});
    return last;
}

void renumber(std::vector<MenuItem> &items, int &lastIndex)
{
    for (MenuItem &item : items) {
        item.index = ++lastIndex;
        renumber(item.children, lastIndex);
    }
}

} // namespace

MenuTree buildMenu(MenuName name, const MenuFacts &facts)
{
    MenuTree tree;
    int lastIndex = 0;
    const auto append = [&](Rows rows) { addRows(tree, rows, 0, 1, true, facts, lastIndex); };
    switch (name) {
    case MenuName::MainMenu:
        append(menu::mainMenu);
        return tree;
    case MenuName::PrefixMenu:
        append(menu::prefixHead);
        append(menu::capitalsRow);
        break;
    case MenuName::WortelMenu:
        append(menu::wortelHead);
        append(menu::capitalsRow);
        break;
    case MenuName::SuffixMenu:
        append(menu::suffixHead);
        break;
    }
    append(menu::tileMenu);
    return tree;
}

const MenuItem *findItem(const MenuTree &tree, int index)
{
    for (const MenuItem &item : tree) {
        if (item.index == index)
            return &item;
        if (const MenuItem *found = findItem(item.children, index))
            return found;
    }
    return nullptr;
}

void MenuModel::CreateMenus()
{
    const MenuFacts now = facts_();
    for (std::size_t i = 0; i < trees_.size(); ++i)
        trees_[i] = buildMenu(static_cast<MenuName>(i), now);
}

bool MenuModel::CP_InitPopupMenu(int index)
{
    MenuTree &tree = trees_[static_cast<std::size_t>(MenuName::MainMenu)];
    auto *item = const_cast<MenuItem *>(findItem(tree, index)); // the tree is ours
    if (item == nullptr || item->onOpening == nullptr)
        return false;
    int lastIndex = lastIndexOf(tree);
    item->children = childrenOnOpening(*item->onOpening, item->enabled, facts_());
    renumber(item->children, lastIndex);
    return true;
}

int MenuModel::ItemKey(MenuName name, int index) const
{
    const MenuItem *item = findItem(Restore(name), index);
    return item == nullptr ? 0 : item->id;
}
