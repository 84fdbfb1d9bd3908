// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/roomy_style.h"

#include <QStyleFactory>
#include <QStyleOptionMenuItem>

RoomyStyle::RoomyStyle()
    : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")))
{}

QSize RoomyStyle::sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
                                   const QWidget *widget) const
{
    const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    const auto *item = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
    const bool isRow = type == CT_ItemViewItem || (type == CT_MenuItem && item != nullptr &&
                                                   item->menuItemType != QStyleOptionMenuItem::Separator);
    return isRow ? size.expandedTo({0, lowestRow}) : size;
}
