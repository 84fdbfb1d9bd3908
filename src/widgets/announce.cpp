// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/announce.h"

#include <QAccessibleWidget>
#include <QWidget>

namespace {

constexpr auto said = "Announcement";

// The readers of Linux desktops speak notifications as they appear, and pass over alerts.
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
constexpr QAccessible::Role alertRole = QAccessible::Notification;
#else
constexpr QAccessible::Role alertRole = QAccessible::AlertMessage;
#endif

/// What a window said last. Its widget is never shown: it is there only to be heard.
class AccessibleAnnouncement : public QAccessibleWidget
{
public:
    explicit AccessibleAnnouncement(QWidget *widget)
        : QAccessibleWidget(widget, alertRole)
    {}

    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.readOnly = true;
        return state;
    }
    QRect rect() const override
    {
        const QWidget *window = widget()->window();
        return {window->mapToGlobal(QPoint(0, 0)), window->size()};
    }
};

QWidget *announcementOf(QWidget *window)
{
    if (auto *made = window->findChild<QWidget *>(QLatin1String(said), Qt::FindDirectChildrenOnly))
        return made;
    auto *widget = new QWidget(window);
    widget->setObjectName(QLatin1String(said));
    widget->setAttribute(Qt::WA_TransparentForMouseEvents);
    widget->resize(0, 0);
    QAccessible::registerAccessibleInterface(new AccessibleAnnouncement(widget));
    return widget;
}

} // namespace

void announce(QWidget &from, const QString &text)
{
    const QString words = text.simplified();
    if (words.isEmpty() || !QAccessible::isActive())
        return;
    QWidget *node = announcementOf(from.window());
    node->setAccessibleName(words);
    for (const QAccessible::Event type : {QAccessible::ObjectShow, QAccessible::Alert}) {
        QAccessibleEvent event(node, type);
        QAccessible::updateAccessibility(&event);
    }
}
