// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/hand/menu_style.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyleFactory>
#include <QStyleOptionMenuItem>

namespace {

constexpr int iconSize = 20;
constexpr int textLeft = 40;  ///< room for the picture or the check mark
constexpr int textRight = 26; ///< room for the arrow of a submenu
constexpr int hintGap = 28;   ///< between text and hint
constexpr int separatorHeight = 7;

// The menu's two colours are white and the dark cyan of the classic palette.
constexpr QColor ink(24, 40, 48);
constexpr QColor menuColour(0, 128, 128);
constexpr QColor chosenBack(209, 238, 238);
constexpr QColor faded(150, 158, 162);
constexpr QColor hintInk(92, 112, 118);

QFont bold(QFont font)
{
    font.setBold(true);
    return font;
}

void drawArrow(QPainter &painter, const QRect &rect, const QColor &colour)
{
    const QPointF middle(rect.right() - 12.5, rect.center().y() + 0.5);
    QPainterPath arrow;
    arrow.moveTo(middle + QPointF(-3, -4.5));
    arrow.lineTo(middle + QPointF(2.5, 0));
    arrow.lineTo(middle + QPointF(-3, 4.5));
    painter.setPen(QPen(colour, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(arrow);
}

void drawCheckMark(QPainter &painter, const QRect &box, const QColor &colour)
{
    const QPointF middle = QRectF(box).center();
    QPainterPath mark;
    mark.moveTo(middle + QPointF(-5, 0.5));
    mark.lineTo(middle + QPointF(-1.5, 4));
    mark.lineTo(middle + QPointF(5.5, -4.5));
    painter.setPen(QPen(colour, 2.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(mark);
}

} // namespace

MenuStyle::MenuStyle()
    : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")))
{}

int MenuStyle::pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const
{
    switch (metric) {
    case PM_SmallIconSize:
        return iconSize;
    case PM_MenuPanelWidth:
        return 1;
    case PM_MenuHMargin:
    case PM_MenuVMargin:
        return 2;
    case PM_MenuDesktopFrameWidth:
        return 0;
    case PM_SubMenuOverlap:
        return -1;
    case PM_MenuScrollerHeight:
        return 18;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int MenuStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                         QStyleHintReturn *data) const
{
    switch (hint) {
    case SH_Menu_Scrollable:
    case SH_Menu_SupportsSections:
    case SH_Menu_MouseTracking:
    case SH_Menu_SloppySubMenus:
    case SH_Menu_AllowActiveAndDisabled:
        return 1;
    case SH_Menu_SubMenuPopupDelay:
        return 150;
    default:
        return QProxyStyle::styleHint(hint, option, widget, data);
    }
}

QSize MenuStyle::sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contents,
                                  const QWidget *widget) const
{
    const auto *item = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
    if (type != CT_MenuItem || item == nullptr)
        return QProxyStyle::sizeFromContents(type, option, contents, widget);

    const bool isSeparator = item->menuItemType == QStyleOptionMenuItem::Separator;
    if (isSeparator && item->text.isEmpty())
        return {textLeft, separatorHeight};
    const QFontMetrics metrics(isSeparator ? bold(item->font) : item->font);
    const QStringList parts = item->text.split(u'\t');
    int width = textLeft + metrics.horizontalAdvance(parts.first()) + textRight;
    if (parts.size() > 1)
        width += hintGap + metrics.horizontalAdvance(parts.at(1));
    return {width, rowHeight_};
}

void MenuStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                              const QWidget *widget) const
{
    switch (element) {
    case PE_PanelMenu:
        painter->fillRect(option->rect, Qt::white);
        return;
    case PE_FrameMenu:
        painter->setPen(menuColour);
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
        return;
    default:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void MenuStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                            const QWidget *widget) const
{
    const auto *item = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
    if (element == CE_MenuEmptyArea)
        return;
    if (element != CE_MenuItem || item == nullptr) {
        QProxyStyle::drawControl(element, option, painter, widget);
        return;
    }
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (item->menuItemType != QStyleOptionMenuItem::Separator)
        drawRow(*item, *painter);
    else if (!item->text.isEmpty())
        drawHeading(*item, *painter);
    else
        painter->fillRect(QRect(item->rect.left() + textLeft, item->rect.center().y(),
                                item->rect.width() - textLeft - 8, 1),
                          QColor(190, 212, 214));
    painter->restore();
}

void MenuStyle::drawHeading(const QStyleOptionMenuItem &item, QPainter &painter) const
{
    QLinearGradient strip(item.rect.topLeft(), item.rect.topRight());
    strip.setColorAt(0, menuColour);
    strip.setColorAt(1, QColor(58, 172, 172));
    painter.fillRect(item.rect.adjusted(0, 0, 0, -2), strip);

    int left = item.rect.left() + 12;
    if (!item.icon.isNull()) {
        const QRect box(item.rect.left() + 10, item.rect.top() + (item.rect.height() - 2 - iconSize) / 2,
                        iconSize, iconSize);
        item.icon.paint(&painter, box);
        left = item.rect.left() + textLeft;
    }
    painter.setFont(bold(item.font));
    painter.setPen(Qt::white);
    painter.drawText(item.rect.adjusted(left - item.rect.left(), 0, 0, -2),
                     Qt::AlignVCenter | Qt::TextSingleLine, item.text);
}

void MenuStyle::drawRow(const QStyleOptionMenuItem &item, QPainter &painter) const
{
    const bool enabled = item.state.testFlag(State_Enabled);
    const QRect row = item.rect;
    if (item.state.testFlag(State_Selected)) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(enabled ? chosenBack : QColor(240, 244, 244));
        painter.drawRoundedRect(QRectF(row).adjusted(2, 1, -2, -1), 5, 5);
    }

    const QRect box(row.left() + 10, row.top() + (row.height() - iconSize) / 2, iconSize, iconSize);
    if (item.checked)
        drawCheckMark(painter, box, enabled ? menuColour : faded);
    else if (!item.icon.isNull())
        item.icon.paint(&painter, box, Qt::AlignCenter, enabled ? QIcon::Normal : QIcon::Disabled);

    const QStringList parts = item.text.split(u'\t');
    const QRect text = row.adjusted(textLeft, 0, -textRight, 0);
    painter.setFont(item.font);
    painter.setPen(enabled ? ink : faded);
    painter.drawText(text, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, parts.first());
    if (parts.size() > 1) {
        painter.setPen(enabled ? hintInk : faded);
        painter.drawText(text.adjusted(0, 0, textRight - 14, 0),
                         Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, parts.at(1));
    }
    if (item.menuItemType == QStyleOptionMenuItem::SubMenu)
        drawArrow(painter, row, enabled ? menuColour : faded);
}
