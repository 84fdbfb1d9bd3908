// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "board/hand/just_type.h"
#include "board/hand/tile_keys.h"

#include <QObject>

class QKeyEvent;
class QLineEdit;

/// The keys of the main window. The window sees them before its controls do, so this room looks at every key
/// that goes to the window, and takes those that are its own: the commands, those of the chosen tile, and
/// letters that nobody else has a use for.
class BoardKeys : public QObject
{
    Q_OBJECT

public:
    /// Listens to the application's keys and presses from now on.
    BoardKeys(Ground &ground, const MainControls &controls, const TileKeys::Rooms &rooms);

    /// A control character, 1 for Ctrl+A to 26; `held` down, it repeats itself. Returns true if it was a key
    /// of the board.
    bool Form_KeyPress(int code, bool held = false);
    /// F1, F6 and Esc, by `Qt::Key`.
    bool Form_KeyDown(int key);

signals:
    /// Esc, with nothing in the hand and no work running: what lies on top is to be closed.
    void escapes();
    /// A letter was typed that no field takes at present.
    void nowhereToType();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool goesToForm(const QObject *watched) const;
    bool handle(const QKeyEvent &event);
    bool isTyping() const;
    bool isLeftByField(int code, bool held) const;
    QLineEdit *activeWordField() const;
    bool isOnBoard() const;
    bool goesDownToList();
    void changeSides();
    void stopWork();
    void pressed(const QWidget *widget);
    void listOpens(QWidget *list);

    Ground &ground_;
    const MainControls &controls_;
    TileKeys::Rooms rooms_;
    TileKeys tileKeys_;
    JustType letters_;
    bool keyWasLast_ = false;             ///< and no press of a pointer
    const QWidget *listInHand_ = nullptr; ///< the list that a pointer has pressed last; only compared
};
