// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/long_press.h"

#include "platform/gate.h"
#include "platform/ground.h"
#include "platform/options.h"
#include "widgets/finger.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QStyleHints>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace {

constexpr auto offersRight = "offersRightPress";
constexpr int lastLook = 50; ///< milliseconds in which a release that waits must have come
constexpr QPointF farOutside{-10000, -10000};

bool isMadeHere(const QMouseEvent &event) { return event.source() == Qt::MouseEventSynthesizedByApplication; }

} // namespace

LongPress::LongPress(Ground &ground, QObject *parent)
    : QObject(parent)
    , ground_(ground)
{
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &LongPress::onTimeout);
    qApp->installEventFilter(this);
}

void LongPress::offer(QWidget *widget) { widget->setProperty(offersRight, true); }

bool LongPress::takesBack(const QMouseEvent &event)
{
    return isMadeHere(event) && event.button() == Qt::LeftButton;
}

bool LongPress::isBehind(const QMouseEvent &event)
{
    return isMadeHere(event) && event.button() == Qt::RightButton;
}

bool LongPress::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
        break;
    default:
        return false;
    }
    auto *widget = qobject_cast<QWidget *>(watched);
    const auto &mouse = *static_cast<QMouseEvent *>(event);
    if (widget == nullptr || isMadeHere(mouse))
        return false;
    if (event->type() == QEvent::MouseMove)
        return keepsMove(mouse);
    if (event->type() != QEvent::MouseButtonRelease) {
        pressed(widget, mouse);
        return false;
    }
    timer_.stop();
    return mouse.button() == Qt::LeftButton && std::exchange(becameRight_, false);
}

void LongPress::pressed(QWidget *widget, const QMouseEvent &event)
{
    // A press that nobody takes goes on to the parents; they offer nothing of their own to it.
    if (timer_.isActive() && press_.widget != nullptr && widget->isAncestorOf(press_.widget) &&
        event.globalPosition().toPoint() == press_.global.toPoint())
        return;
    timer_.stop();
    becameRight_ = false;
    const bool counts = event.buttons() == Qt::LeftButton && widget->property(offersRight).toBool() &&
                        (finger::isBehind(event) || ground_.options.isOn(Setting::LongPressIsRight));
    if (!counts)
        return;
    press_ = {widget, event.position(), event.globalPosition(), event.modifiers()};
    calm_ = false;
    timer_.start(std::max(0, QGuiApplication::styleHints()->mousePressAndHoldInterval() - lastLook));
}

/// A hand that has moved drags; one that rests after a long press does nothing more.
bool LongPress::keepsMove(const QMouseEvent &event)
{
    const QPointF way = event.globalPosition() - press_.global;
    if (way.manhattanLength() >= QGuiApplication::styleHints()->startDragDistance())
        timer_.stop();
    if (!event.buttons().testFlag(Qt::LeftButton))
        becameRight_ = false; // the release went elsewhere
    return becameRight_;
}

void LongPress::onTimeout()
{
    if (!isReached(press_.widget))
        return;
    // A short command lets the window appear, but no hand in: this one waits like all input, and behind a
    // release that came meanwhile.
    const bool commandRuns = !ground_.gate.isFree() && ground_.gate.work() == nullptr &&
                             QApplication::activeModalWidget() == nullptr;
    if (!commandRuns && calm_) {
        becomeRight();
        return;
    }
    calm_ = !commandRuns;
    timer_.start(lastLook);
}

/// A box or a menu may have come over the widget meanwhile, and it may rest or be gone.
bool LongPress::isReached(const QWidget *widget) const
{
    if (widget == nullptr || !widget->isVisible() || !widget->isEnabled() || ground_.gate.isClosing() ||
        QApplication::activePopupWidget() != nullptr)
        return false;
    const QWidget *modal = QApplication::activeModalWidget();
    return modal == nullptr || modal == widget->window() || modal->isAncestorOf(widget);
}

/// A menu may open meanwhile, and in it the next press comes.
void LongPress::becomeRight()
{
    const Press held = press_;
    becameRight_ = true;
    held.send(QEvent::MouseButtonRelease, Qt::LeftButton, farOutside);
    held.send(QEvent::MouseButtonPress, Qt::RightButton, {});
    if (isReached(held.widget)) {
        QContextMenuEvent menu(QContextMenuEvent::Mouse, held.place.toPoint(), held.global.toPoint(),
                               held.modifiers);
        QApplication::sendEvent(held.widget, &menu);
    }
    held.send(QEvent::MouseButtonRelease, Qt::RightButton, {});
}

/// `away` is measured from the place of the press. What was sent before may have ended the widget.
void LongPress::Press::send(QEvent::Type type, Qt::MouseButton button, const QPointF &away) const
{
    if (widget == nullptr)
        return;
    const bool down = type == QEvent::MouseButtonPress;
    const QPointF inWindow = widget->mapTo(widget->window(), place) + away;
    QMouseEvent event(type, place + away, inWindow, global + away, button, down ? button : Qt::NoButton,
                      modifiers, Qt::MouseEventSynthesizedByApplication);
    QApplication::sendEvent(widget, &event);
}
