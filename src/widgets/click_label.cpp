// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/click_label.h"

#include <QMouseEvent>

ClickLabel::ClickLabel(QWidget *parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setCursor(Qt::PointingHandCursor);
}

void ClickLabel::mousePressEvent(QMouseEvent *event)
{
    event->accept();
    if (event->button() == Qt::LeftButton)
        emit clicked();
}
