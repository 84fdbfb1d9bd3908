// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPoint>

class BoardFocus;
class BoardNews;
class BoardPointer;
class Canvas;
class CommandRouter;
class QKeyEvent;
struct Ground;
struct MainControls;

/// What keys do to the tiles while the board has the keyboard: they choose one, move it, change it, remove
/// it, put its text into the word field, and open the menu of the chosen tile or of the board. A key that
/// changes something acts only on a tile that is seen to be chosen, and only once however long it is held.
class TileKeys
{
public:
    /// What the keys call.
    struct Rooms
    {
        BoardFocus &focus;
        Canvas &canvas;
        CommandRouter &router;
        BoardPointer &pointer;
        BoardNews &news;
    };

    TileKeys(Ground &ground, const MainControls &controls, const Rooms &rooms);

    /// Returns true if it was a key of the board.
    bool press(const QKeyEvent &event);
    /// A tile is being moved, and nobody has been told.
    bool inRun() const { return moved_; }
    /// A run of moves is over: it is told as a drop is.
    void endRun();

private:
    bool steps(const QKeyEvent &event);
    bool acts(const QKeyEvent &event);
    void move(QPoint by);
    void putIntoWord();
    void checkWord();
    void openMenu();
    void runOnTile(int command);

    Ground &ground_;
    const MainControls &controls_;
    Rooms rooms_;
    bool moved_ = false; ///< since a run began
};
