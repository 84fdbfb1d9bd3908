// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>

/// The application of the tests. It knows which of Qt's own walks are on the stack: handlers of activation,
/// resizing, showing, painting, closing and focus, in which nobody may let events run or open a box.
class WatchfulApplication : public QApplication
{
public:
    using QApplication::QApplication;

    bool notify(QObject *receiver, QEvent *event) override
    {
        if (!isWalk(event->type()))
            return QApplication::notify(receiver, event);
        const QString outer = std::exchange(
            walk_, QStringLiteral("event %1 of %2").arg(int(event->type())).arg(receiver->objectName()));
        const bool result = QApplication::notify(receiver, event);
        walk_ = outer;
        return result;
    }

    /// The innermost walk, or nothing. A nested event loop does not end the walk that it was begun in.
    static QString walk()
    {
        const auto *self = dynamic_cast<const WatchfulApplication *>(qApp);
        return self != nullptr ? self->walk_ : QString();
    }

private:
    static bool isWalk(QEvent::Type type)
    {
        switch (type) {
        case QEvent::ActivationChange:
        case QEvent::WindowActivate:
        case QEvent::WindowDeactivate:
        case QEvent::Resize:
        case QEvent::Move:
        case QEvent::Show:
        case QEvent::Hide:
        case QEvent::Paint:
        case QEvent::Close:
        case QEvent::FocusIn:
        case QEvent::FocusOut:
        case QEvent::WindowStateChange:
        case QEvent::EnabledChange:
        case QEvent::DragEnter:
        case QEvent::Drop:
            return true;
        default:
            return false;
        }
    }

    QString walk_;
};
