// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class BoardPointer;
class CommandRouter;
class PopupMenu;
class QKeyEvent;
struct Ground;
struct MainControls;

/// The keys of the board. The window sees them before its controls do, so this room looks at every key that
/// goes to the window, and takes those that are its own.
class BoardKeys : public QObject
{
    Q_OBJECT

public:
    /// Listens to the application's key presses from now on.
    BoardKeys(Ground &ground, const MainControls &controls, CommandRouter &router, BoardPointer &pointer,
              PopupMenu &popup);

    /// A control character, 1 for Ctrl+A to 26. Returns true if it was a key of the board.
    bool Form_KeyPress(int code);
    /// F1 and Esc, by `Qt::Key`.
    bool Form_KeyDown(int key);
    /// The menu key.
    bool picCanvas_KeyDown(int key);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool goesToForm(const QObject *watched) const;
    bool handle(const QKeyEvent &event);
    bool isTyping() const;
    void stopWork();

    Ground &ground_;
    const MainControls &controls_;
    CommandRouter &router_;
    BoardPointer &pointer_;
    PopupMenu &popup_;
};
