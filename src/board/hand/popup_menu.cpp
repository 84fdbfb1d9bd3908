// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/hand/popup_menu.h"

#include "board/hand/menu_style.h"
#include "platform/gate.h"
#include "widgets/opening_press.h"

#include <QMenu>

#include <algorithm>

namespace {

constexpr int fullRow = 30; ///< comfortable for a finger
constexpr int lowestRow = 24;

/// A menu takes "&" for the mark of a mnemonic; list names may hold one.
QString menuText(const MenuItem &item)
{
    QString text = item.hint.isEmpty() ? item.caption : item.caption + u'\t' + item.hint;
    return text.replace(QLatin1Char('&'), QStringLiteral("&&"));
}

} // namespace

PopupMenu::PopupMenu(Gate &gate, MenuModel &model, QWidget *owner)
    : gate_(gate)
    , model_(model)
    , owner_(owner)
    , style_(std::make_unique<MenuStyle>())
{}

PopupMenu::~PopupMenu() = default;

int PopupMenu::ShowPopupMenu(MenuName name, const QPoint &position)
{
    const Gate::Passage open = gate_.openBox();
    if (!open)
        return 0;
    if (chooser_)
        return chooser_(name, position);
    fitRows(position, model_.Restore(name).size());
    const std::unique_ptr<QMenu> menu = makeMenu(name);
    const QAction *chosen = menu->exec(OpeningPress::placeFor(*menu, position));
    return chosen == nullptr ? 0 : chosen->data().toInt();
}

std::unique_ptr<QMenu> PopupMenu::makeMenu(MenuName name)
{
    auto menu = std::make_unique<QMenu>(owner_);
    menu->setStyle(style_.get());
    QFont font = menu->font();
    font.setPixelSize(13);
    menu->setFont(font);
    fill(*menu, name, model_.Restore(name));
    return menu;
}

void PopupMenu::fill(QMenu &menu, MenuName name, const std::vector<MenuItem> &items)
{
    for (const MenuItem &item : items) {
        switch (item.kind) {
        case MenuItem::Kind::Separator:
            menu.addSeparator();
            break;
        case MenuItem::Kind::Heading:
            menu.addSection(icon(item.icon), item.caption);
            break;
        case MenuItem::Kind::Submenu:
            addSubmenu(menu, name, item);
            break;
        case MenuItem::Kind::Command: {
            QAction *action = menu.addAction(icon(item.icon), menuText(item));
            action->setEnabled(item.enabled);
            action->setCheckable(item.checked);
            action->setChecked(item.checked);
            action->setData(item.index);
            break;
        }
        }
    }
}

QIcon PopupMenu::icon(int number)
{
    if (number < 0)
        return {};
    QIcon &icon = icons_[number];
    if (icon.isNull())
        icon = QIcon(QStringLiteral(":/icons/menu/%1.svg").arg(number, 2, 10, QLatin1Char('0')));
    return icon;
}

void PopupMenu::addSubmenu(QMenu &menu, MenuName name, const MenuItem &item)
{
    QMenu *submenu = menu.addMenu(icon(item.icon), menuText(item));
    submenu->setStyle(style_.get());
    submenu->setFont(menu.font());
    submenu->menuAction()->setEnabled(item.enabled);
    fill(*submenu, name, item.children);
    if (item.onOpening == nullptr)
        return;
    QObject::connect(submenu, &QMenu::aboutToShow, submenu, [this, submenu, name, index = item.index] {
        if (!model_.CP_InitPopupMenu(index))
            return;
        submenu->clear();
        fill(*submenu, name, model_.itemAt(name, index)->children);
    });
}

void PopupMenu::fitRows(const QPoint &position, std::size_t rows)
{
    const int room = OpeningPress::screenOf(position).height() - 8;
    style_->setRowHeight(std::clamp(room / std::max(1, static_cast<int>(rows)), lowestRow, fullRow));
}
