// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/box_shadow.h"

#include <QEvent>
#include <QPainter>

namespace {

constexpr int blur = 16; ///< pixels that the shadow reaches beyond the box
constexpr int drop = 5;  ///< pixels that it lies lower

} // namespace

BoxShadow::BoxShadow(QWidget *box, QWidget *ground)
    : QWidget(ground->window())
    , box_(box)
{
    setObjectName(QStringLiteral("BoxShadow"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    hide();
    connect(box, &QObject::destroyed, this, &QObject::deleteLater);
    box->installEventFilter(this);
}

bool BoxShadow::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Show:
    case QEvent::Move:
    case QEvent::Resize:
        follow();
        break;
    case QEvent::Hide:
        vanish();
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

void BoxShadow::follow()
{
    if (!box_->isVisible())
        return;
    if (!frozenParts().isEmpty()) {
        vanish();
        return;
    }
    const QRect place(parentWidget()->mapFromGlobal(box_->geometry().topLeft()), box_->size());
    setGeometry(place.adjusted(-blur, -blur, blur, blur).translated(0, drop));
    show();
    raise();
}

void BoxShadow::vanish()
{
    if (isHidden())
        return;
    hide();
    for (QWidget *frozen : frozenParts()) { // since the box came up
        frozen->setUpdatesEnabled(true);
        frozen->repaint();
        frozen->setUpdatesEnabled(false);
    }
}

QWidgetList BoxShadow::frozenParts() const
{
    QWidget *ground = parentWidget();
    if (!ground->updatesEnabled())
        return {ground};
    auto parts = ground->findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
    parts.removeIf([](const QWidget *part) { return part->updatesEnabled() || !part->isVisible(); });
    return parts;
}

void BoxShadow::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 10, 40, 11));
    for (int inset = 0; inset < blur; inset += 2)
        painter.drawRoundedRect(rect().adjusted(inset, inset, -inset, -inset), blur - inset / 2,
                                blur - inset / 2);
}
