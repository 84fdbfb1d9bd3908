// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/click_label.h"

#include "widgets/press_keys.h"

#include <QMouseEvent>

ClickLabel::ClickLabel(QWidget *parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
}

void ClickLabel::mousePressEvent(QMouseEvent *event)
{
    event->accept();
    if (event->button() == Qt::LeftButton)
        emit clicked();
}

void ClickLabel::keyPressEvent(QKeyEvent *event)
{
    if (buttonOfKey(*event) != Qt::LeftButton)
        event->ignore();
    else if (!event->isAutoRepeat())
        emit clicked();
}

void ClickLabel::paintEvent(QPaintEvent *event)
{
    QLabel::paintEvent(event);
    if (!hasFocus())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintKeyFrame(painter, QRectF(rect()).adjusted(2, 2, -2, -2), 4);
}
