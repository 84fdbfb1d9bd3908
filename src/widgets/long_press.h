// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QEvent>
#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QTimer>

class QMouseEvent;
class QWidget;
struct Ground;

/// A press that is held still is the right button: of a finger or a pen always, of every pointer if the
/// setting wants it, for many whiteboards send a mouse. It counts where a widget has said that the right
/// button means something there; elsewhere a slow press stays the press it is. The left press is taken back
/// first: the widget gets its release far outside, then the right press and release at the place of the
/// finger, as if a mouse had done it. What the hand does until it lets go is kept from everybody.
class LongPress : public QObject
{
    Q_OBJECT

public:
    /// Watches the whole application as long as it lives.
    explicit LongPress(Ground &ground, QObject *parent = nullptr);

    /// On this widget (of a list or a text: its viewport) the right button means something.
    static void offer(QWidget *widget);
    /// True for the release that takes a left press back: it was no click and ends nothing that was marked,
    /// moved or drawn.
    static bool takesBack(const QMouseEvent &event);
    /// True for a right press that was made of a held one.
    static bool isBehind(const QMouseEvent &event);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void pressed(QWidget *widget, const QMouseEvent &event);
    bool keepsMove(const QMouseEvent &event);
    void onTimeout();
    bool isReached(const QWidget *widget) const;
    void becomeRight();

    struct Press
    {
        QPointer<QWidget> widget;
        QPointF place;  ///< in the widget
        QPointF global; ///< on the screen
        Qt::KeyboardModifiers modifiers;

        void send(QEvent::Type type, Qt::MouseButton button, const QPointF &away) const;
    };

    Ground &ground_;
    QTimer timer_;
    Press press_;
    bool calm_ = false;        ///< no command has kept input back lately
    bool becameRight_ = false; ///< and the hand has not yet let go
};
