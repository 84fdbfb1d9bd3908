// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "board/hand/menu_model.h"
#include "board/hand/tile_drag.h"

#include <QObject>
#include <QPoint>

class BoardCommands;
class BoardFocus;
class BoardNews;
class Canvas;
class CommandRouter;
class PopupMenu;
class QMouseEvent;
class TileStore;
struct Ground;
struct MainControls;
struct Press;

/// What the pointer does on the board: it picks tiles up, moves and drops them, inserts, copies and removes
/// with the shift keys, and opens the menus. A finger drags like the left button, but not while it trembles
/// on its place.
class BoardPointer : public QObject
{
    Q_OBJECT

public:
    /// How near a tile may come to the right edge and to the lower edge of the window, in pixels.
    static constexpr int rightMargin = 30;
    static constexpr int lowerMargin = 80;

    /// What the pointer calls.
    struct Rooms
    {
        Canvas &canvas;
        CommandRouter &router;
        BoardCommands &commands;
        PopupMenu &popup;
        BoardNews &news;
        BoardFocus &focus;
    };

    /// Listens to `picCanvas` from now on.
    BoardPointer(Ground &ground, const MainControls &controls, const Rooms &rooms);

    // The handlers of the board; points are pixels of `picCanvas`, which the view
    // of the board may show smaller than it is. Each passes the gate.
    void picCanvas_MouseDown(Qt::MouseButton button, Qt::KeyboardModifiers shift, const QPoint &point);
    void picCanvas_MouseMove(Qt::MouseButtons buttons, const QPoint &point);
    void picCanvas_MouseUp(Qt::MouseButton button, const QPoint &point);

    /// The menu of the empty board, with its corner at that point of the screen. What it lays goes to the
    /// middle of the board.
    void openMenu(const QPoint &corner);

    /// Joins the held tile's text to the word in the field, which gets the keyboard, so that Enter checks it.
    void Dropper1_DragDrop();
    /// Joins a text to the word in the field, unless that takes none.
    void putIntoWord(const QString &text);
    /// Shows the menu of what was pressed, with its corner at a point of the screen, and does what is chosen.
    void showMenu(const Press &press, const QPoint &corner);
    /// The last place to the right and below that a tile can be moved to.
    QPoint farthest() const;
    /// What follows a drop: the board is drawn anew and the filter comes back.
    void DoOnDrop();

    bool isDragging() const { return drag_.isActive(); }
    /// A tile is in the hand.
    bool isHolding() const;
    bool TileMoved() const { return tileMoved_; }
    /// A tile that is held is let go where it is; one that is dragged to the word field falls back to its
    /// place, and nothing is dropped. Lets nothing run: a box, a menu or another window takes the hand.
    void letGo();

private:
    void onMouseDown(QMouseEvent *event);
    void onMouseMoved(QMouseEvent *event);
    void onMouseUp(QMouseEvent *event);

    void takePressBack();
    void leftPress(Qt::KeyboardModifiers shift, const QPoint &point);
    void rightPress(Qt::KeyboardModifiers shift, const QPoint &point);
    void insertByShift(Qt::KeyboardModifiers shift, const QPoint &point);

    Ground &ground_;
    const MainControls &controls_;
    Rooms rooms_;
    TileStore &store_;
    TileDrag drag_;
    QPoint pressed_;
    QPoint takenFrom_;         ///< place of the tile that the last press took
    bool tileMoved_ = false;   ///< the last press took a tile
    bool fingerRests_ = false; ///< it is a finger's, and has not moved yet
    bool inserted_ = false;    ///< the last press laid a new tile
};
