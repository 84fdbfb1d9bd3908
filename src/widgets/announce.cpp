// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/announce.h"

#include <QAccessibleWidget>
#include <QEvent>
#include <QLabel>
#include <QWidget>

namespace {

constexpr auto said = "Announcement";

// The readers of Linux desktops speak notifications as they appear, and pass over alerts.
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
constexpr QAccessible::Role alertRole = QAccessible::Notification;
#else
constexpr QAccessible::Role alertRole = QAccessible::AlertMessage;
#endif

/// What a window has said. Its widget is never shown: it is there only to be heard.
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

/// Waits for a label's coming into sight.
class ShownLabel : public QObject
{
public:
    explicit ShownLabel(QLabel &label)
        : QObject(&label)
        , label_(label)
    {
        label.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Show)
            announce(label_, label_.text());
        return false;
    }

private:
    QLabel &label_;
};

/// The one of the window's that spoke longest ago: a reader asks for the words a moment later, when another
/// may have been said.
QWidget *announcementOf(QWidget *window)
{
    constexpr qsizetype mostAtOnce = 4;
    const auto made = window->findChildren<QWidget *>(QLatin1String(said), Qt::FindDirectChildrenOnly);
    if (made.size() >= mostAtOnce) {
        made.first()->raise(); // to the end of the children
        return made.first();
    }
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

void announceWhenShown(QLabel &label) { new ShownLabel(label); }
