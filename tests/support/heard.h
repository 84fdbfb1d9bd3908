// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAccessible>
#include <QHash>
#include <QStringList>

/// A screen reader for as long as this lives: what the program tells it, the names by the kind of event.
class Heard
{
public:
    Heard()
        : before_(QAccessible::installUpdateHandler(&Heard::note))
    {
        names().clear();
        QAccessible::setActive(true);
    }
    ~Heard()
    {
        QAccessible::setActive(false);
        QAccessible::installUpdateHandler(before_);
    }
    static QHash<QAccessible::Event, QStringList> &names()
    {
        static QHash<QAccessible::Event, QStringList> all;
        return all;
    }

private:
    static void note(QAccessibleEvent *event)
    {
        if (const QAccessibleInterface *about = event->accessibleInterface())
            names()[event->type()] << about->text(QAccessible::Name);
    }

    QAccessible::UpdateHandler before_;
};
