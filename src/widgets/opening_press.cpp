// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/opening_press.h"

#include <QApplication>
#include <QMenu>
#include <QMouseEvent>
#include <QScreen>

#include <algorithm>

OpeningPress::OpeningPress(QMenu &menu)
    : QObject(&menu)
{
    qApp->installEventFilter(this); // the menu's submenus get their events themselves
    connect(&menu, &QMenu::aboutToHide, this, [this] {
        qApp->removeEventFilter(this);
        deleteLater();
    });
}

QPoint OpeningPress::placeFor(QMenu &menu, const QPoint &wanted)
{
    new OpeningPress(menu);
    const QRect screen = screenOf(wanted);
    const QSize size = menu.sizeHint();
    return {std::max(screen.left(), std::min(wanted.x(), screen.right() + 1 - size.width())),
            std::max(screen.top(), std::min(wanted.y(), screen.bottom() + 1 - size.height()))};
}

QRect OpeningPress::screenOf(const QPoint &position)
{
    const QScreen *screen = QGuiApplication::screenAt(position);
    return (screen != nullptr ? screen : QGuiApplication::primaryScreen())->availableGeometry();
}

bool OpeningPress::eventFilter(QObject *watched, QEvent *event)
{
    if (qobject_cast<QMenu *>(watched) == nullptr)
        return false;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        seenDown_ |= static_cast<QMouseEvent *>(event)->button();
        return false;
    case QEvent::MouseMove:
        return (static_cast<QMouseEvent *>(event)->buttons() & ~seenDown_) != Qt::NoButton;
    case QEvent::MouseButtonRelease:
        return !seenDown_.testFlag(static_cast<QMouseEvent *>(event)->button());
    default:
        return false;
    }
}
