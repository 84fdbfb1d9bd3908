// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/press_button.h"

#include "widgets/colour.h"

#include <QLinearGradient>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

#include <algorithm>
#include <array>

namespace {

constexpr QColor checkedFace{0xFF, 0xDC, 0x73};
constexpr QColor disabledFace{0xE2, 0xE7, 0xEF};
constexpr QColor normalText{0x14, 0x23, 0x3E};
constexpr QColor disabledText{0x74, 0x7F, 0x93};
constexpr double cornerRadius = 6;
constexpr int margin = 3; ///< pixels round the face, for shadow and checked frame
constexpr int gap = 4;    ///< pixels between icon and text
constexpr int touchSize = 34;

} // namespace

struct PressButton::Look
{
    QRectF face;
    QColor back;
    QColor text;
    bool pressed;
    bool checked;
    bool hovered;
};

PressButton::PressButton(QWidget *parent)
    : QToolButton(parent)
{
    setFocusPolicy(Qt::NoFocus);
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setAttribute(Qt::WA_Hover);
}

void PressButton::setFace(const QColor &back, const QColor &text)
{
    back_ = back;
    text_ = text;
    update();
}

QSize PressButton::sizeHint() const
{
    const QSize picture = icon().isNull() ? QSize(0, 0) : iconSize();
    const QSize words = text().isEmpty() ? QSize(0, 0) : fontMetrics().size(Qt::TextShowMnemonic, text());
    const int between = picture.isEmpty() || words.isEmpty() ? 0 : gap;
    return QSize(picture.width() + between + words.width() + 2 * (margin + 5),
                 std::max(picture.height(), words.height()) + 2 * (margin + 2))
        .expandedTo(QSize(touchSize, touchSize));
}

PressButton::Look PressButton::look() const
{
    Look look;
    look.pressed = isDown();
    look.checked = isChecked();
    look.hovered = isEnabled() && underMouse();
    look.face = QRectF(rect()).adjusted(margin - 0.5, margin - 1.5, 0.5 - margin, -margin - 0.5);
    if (look.pressed)
        look.face.translate(0, 1);
    look.back = back_.isValid() ? back_ : look.checked ? checkedFace : paint::face;
    look.text = text_.isValid() ? text_ : normalText;
    if (!isEnabled()) {
        // A coloured face keeps a trace of its colour, so that a disabled filter is still told from the
        // others.
        const auto faded = [](int own, int grey) { return (own + 3 * grey) / 4; };
        look.back = back_.isValid() ? QColor(faded(back_.red(), disabledFace.red()),
                                             faded(back_.green(), disabledFace.green()),
                                             faded(back_.blue(), disabledFace.blue()))
                                    : disabledFace;
        look.text = disabledText;
    }
    return look;
}

void PressButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const Look now = look();
    paintFace(painter, now);
    paintContent(painter, now);
}

void PressButton::paintFace(QPainter &painter, const Look &look) const
{
    painter.setPen(Qt::NoPen);
    if (isEnabled() && !look.pressed) {
        static constexpr std::array shadow{std::pair{2.5, 16}, std::pair{1.75, 28}, std::pair{1.0, 44}};
        for (const auto &[drop, alpha] : shadow) {
            painter.setBrush(QColor(10, 25, 60, alpha));
            painter.drawRoundedRect(look.face.adjusted(-0.5, drop - 1, 0.5, drop), cornerRadius + 1,
                                    cornerRadius + 1);
        }
    }
    QLinearGradient shine(look.face.topLeft(), look.face.bottomLeft());
    const QColor light = look.hovered ? look.back.lighter(115) : look.back.lighter(108);
    const QColor deep = look.back.darker(look.hovered ? 103 : 112);
    shine.setColorAt(0, look.pressed ? deep.darker(115) : isEnabled() ? light : look.back);
    shine.setColorAt(1, look.pressed ? look.back : isEnabled() ? deep : look.back);
    painter.setBrush(shine);
    painter.setPen(QPen(isEnabled() ? look.back.darker(165) : look.back.darker(120), 1));
    painter.drawRoundedRect(look.face, cornerRadius, cornerRadius);
    if (look.checked) {
        // White between two dark lines stands out on every colour of face.
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(isEnabled() ? QColor(0x12, 0x2A, 0x5C) : disabledText, 2));
        painter.drawRoundedRect(look.face, cornerRadius, cornerRadius);
        painter.setPen(QPen(QColor(255, 255, 255, 220), 1.5));
        painter.drawRoundedRect(look.face.adjusted(2, 2, -2, -2), cornerRadius - 2, cornerRadius - 2);
    }
    if (hasFocus()) { // only in a window whose buttons take it
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(look.checked ? look.text : paint::activeFrame, 1.5, Qt::DotLine));
        painter.drawRoundedRect(look.face.adjusted(4, 4, -4, -4), cornerRadius - 3, cornerRadius - 3);
    }
}

void PressButton::paintContent(QPainter &painter, const Look &look) const
{
    const QRect inside = look.face.toAlignedRect().adjusted(2, 1, -2, -1);
    const QIcon::Mode mode = isEnabled() ? QIcon::Normal : QIcon::Disabled;
    const QIcon::State state = isChecked() ? QIcon::On : QIcon::Off;
    const bool hasIcon = !icon().isNull() && toolButtonStyle() != Qt::ToolButtonTextOnly;
    const QSize picture = hasIcon ? iconSize().boundedTo(inside.size()) : QSize(0, 0);
    const bool hasText = !text().isEmpty() && (toolButtonStyle() != Qt::ToolButtonIconOnly || !hasIcon);
    const bool stacked = toolButtonStyle() == Qt::ToolButtonTextUnderIcon;

    const QSize words = hasText ? fontMetrics().size(Qt::TextShowMnemonic, text()) : QSize(0, 0);
    const int between = hasIcon && hasText ? gap : 0;
    QRect pictureRect(QPoint(), picture);
    QRect textRect;
    if (stacked) {
        const int top = inside.top() + (inside.height() - picture.height() - words.height()) / 2;
        pictureRect.moveTopLeft({inside.center().x() - picture.width() / 2, top});
        textRect = QRect(inside.left(), pictureRect.bottom() + 1, inside.width(), words.height());
    } else {
        const int used = std::min(inside.width(), picture.width() + between + words.width());
        pictureRect.moveTopLeft({inside.left() + (inside.width() - used) / 2,
                                 inside.top() + (inside.height() - picture.height() + 1) / 2});
        const int left = hasIcon ? pictureRect.right() + 1 + between : inside.left();
        textRect = QRect(QPoint(left, inside.top()), QPoint(inside.right(), inside.bottom()));
    }
    if (hasIcon)
        icon().paint(&painter, pictureRect, Qt::AlignCenter, mode, state);
    if (hasText) {
        painter.setPen(look.text);
        const int side = hasIcon && !stacked ? Qt::AlignLeft : Qt::AlignHCenter;
        painter.drawText(textRect, side | Qt::AlignVCenter | Qt::TextShowMnemonic, text());
    }
}

void PressButton::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::RightButton) {
        event->accept();
        emit mouseDown(Qt::RightButton, event->modifiers());
        return;
    }
    QToolButton::mousePressEvent(event);
}

void PressButton::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        event->accept();
        return;
    }
    const bool inside = isDown() && hitButton(event->position().toPoint());
    const Qt::KeyboardModifiers modifiers = event->modifiers();
    const QPointer<PressButton> self(this); // a click may close the window that the button stands in
    QToolButton::mouseReleaseEvent(event);
    if (self && inside)
        emit mouseDown(Qt::LeftButton, modifiers);
}
