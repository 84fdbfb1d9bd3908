// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/key_order.h"

#include <QLayout>
#include <QSplitter>

namespace {

QWidget *goOn(QWidget *widget, QWidget *last)
{
    if ((widget->focusPolicy() & Qt::TabFocus) != 0) {
        if (last != nullptr)
            QWidget::setTabOrder(last, widget);
        return widget;
    }
    if (const auto *splitter = qobject_cast<const QSplitter *>(widget)) {
        for (int i = 0; i < splitter->count(); ++i)
            last = goOn(splitter->widget(i), last);
        return last;
    }
    return widget->layout() == nullptr ? last : orderForKeys(widget->layout(), last);
}

} // namespace

QWidget *orderForKeys(const QLayout *layout, QWidget *last)
{
    for (int i = 0; i < layout->count(); ++i) {
        QLayoutItem *item = layout->itemAt(i);
        if (QWidget *widget = item->widget())
            last = goOn(widget, last);
        else if (item->layout() != nullptr)
            last = orderForKeys(item->layout(), last);
    }
    return last;
}
