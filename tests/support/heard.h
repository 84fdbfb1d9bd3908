// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAccessible>
#include <QRegularExpression>
#include <QStringList>

/// A screen reader for as long as this lives: what the program tells it, one line an event.
class Heard
{
public:
    Heard()
        : before_(QAccessible::installUpdateHandler(&Heard::note))
    {
        lines().clear();
        QAccessible::setActive(true);
    }
    ~Heard()
    {
        QAccessible::setActive(false);
        QAccessible::installUpdateHandler(before_);
    }
    Heard(const Heard &) = delete;
    Heard &operator=(const Heard &) = delete;

    /// The lines of that kind since the last call.
    static QStringList take(const QString &kind)
    {
        const QStringList found = lines().filter(QRegularExpression(QStringLiteral("^%1: ").arg(kind)));
        lines().clear();
        return QStringList(found).replaceInStrings(kind + QStringLiteral(": "), QString());
    }
    static QStringList alerts() { return take(QStringLiteral("alert")); }

private:
    static QStringList &lines()
    {
        static QStringList all;
        return all;
    }

    static void note(QAccessibleEvent *event)
    {
        QAccessibleInterface *about = event->accessibleInterface();
        const char *kind = event->type() == QAccessible::Alert             ? "alert"
                           : event->type() == QAccessible::Focus           ? "focus"
                           : event->type() == QAccessible::ObjectDestroyed ? "gone"
                           : event->type() == QAccessible::ObjectCreated   ? "new"
                           : event->type() == QAccessible::NameChanged     ? "name"
                           : event->type() == QAccessible::ValueChanged    ? "value"
                           : event->type() == QAccessible::StateChanged    ? "state"
                                                                           : nullptr;
        if (kind != nullptr && about != nullptr)
            lines() << QLatin1String(kind) + QStringLiteral(": ") + about->text(QAccessible::Name);
    }

    QAccessible::UpdateHandler before_;
};
