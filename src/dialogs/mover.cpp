// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/mover.h"

#include <QMouseEvent>
#include <QScreen>
#include <QWidget>
#include <QWindow>

#include <algorithm>

Mover::Mover(QWidget *handle)
    : QObject(handle)
    , handle_(handle)
{
    handle->setCursor(Qt::SizeAllCursor);
    handle->installEventFilter(this);
}

bool Mover::eventFilter(QObject *watched, QEvent *event)
{
    const auto *mouse = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseMove ||
                                event->type() == QEvent::MouseButtonRelease
                            ? static_cast<QMouseEvent *>(event)
                            : nullptr;
    if (mouse == nullptr)
        return QObject::eventFilter(watched, event);
    const QPoint pointer = mouse->globalPosition().toPoint();
    if (event->type() == QEvent::MouseButtonPress && mouse->button() == Qt::LeftButton) {
        QWindow *window = handle_->window()->windowHandle();
        moving_ = window == nullptr || !window->startSystemMove();
        grip_ = pointer - handle_->window()->pos();
    } else if (event->type() == QEvent::MouseMove && moving_) {
        follow(pointer);
    } else if (event->type() == QEvent::MouseButtonRelease) {
        moving_ = false;
    }
    return true;
}

void Mover::follow(const QPoint &pointer)
{
    QWidget *window = handle_->window();
    const QRect screen = window->screen()->availableGeometry();
    const QPoint wanted = pointer - grip_;
    const int right = std::max(screen.left(), screen.right() + 1 - window->width());
    const int bottom = std::max(screen.top(), screen.bottom() + 1 - window->height());
    window->move(std::clamp(wanted.x(), screen.left(), right), std::clamp(wanted.y(), screen.top(), bottom));
}
