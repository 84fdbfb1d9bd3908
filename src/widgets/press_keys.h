// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QKeyEvent>
#include <QPainter>

#include <optional>

/// The keys that press what has the keyboard, the same everywhere: blank and Enter are the left button, the
/// menu key and Shift+F10 the right one. Whoever asks lets a key that is held (`isAutoRepeat`) press once.
inline std::optional<Qt::MouseButton> buttonOfKey(const QKeyEvent &event)
{
    switch (event.key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return Qt::LeftButton;
    case Qt::Key_Menu:
        return Qt::RightButton;
    case Qt::Key_F10:
        if (event.modifiers().testFlag(Qt::ShiftModifier))
            return Qt::RightButton;
        return {};
    default:
        return {};
    }
}

/// The frame round what has the keyboard: orange between dark lines, seen on every colour and not to be taken
/// for that of a tool that is switched on.
inline void paintKeyFrame(QPainter &painter, const QRectF &around, double radius)
{
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(0x12, 0x2A, 0x5C), 5));
    painter.drawRoundedRect(around, radius, radius);
    painter.setPen(QPen(QColor(0xFF, 0x9A, 0x1F), 3));
    painter.drawRoundedRect(around, radius, radius);
}
