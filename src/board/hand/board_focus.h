// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "board/hand/command_router.h"
#include "board/tiles/tile_store.h"

#include <QObject>
#include <QRect>

class Canvas;
struct MainControls;

/// The keyboard's place on the board: the tile that the keys act on. It stays the same tile while tiles are
/// drawn anew, moved, changed or put back by undo, and is none when its tile goes or the filter hides it;
/// then the keys go on from where it lay. A frame shows it while the board has the keyboard and was last
/// worked with keys.
class BoardFocus : public QObject
{
    Q_OBJECT

public:
    enum class Go {
        Left,
        Right,
        Up,
        Down,
        First,    ///< from the top left, row by row
        Last,     ///< the end of that order
        Previous, ///< a step back in that order
        Next
    };

    BoardFocus(const MainControls &controls, Canvas &canvas);

    /// The chosen tile, one of the store's that the filter shows, or nullptr.
    const cWortel *chosen() const;
    /// The same as an index into the store, or -1.
    int index() const;
    /// One of the store's tiles that the filter shows, or nullptr for none.
    void choose(const cWortel *tile);
    /// Chooses the nearest tile in that direction, or, if none is chosen, the one nearest to where the last
    /// one lay. False if there is none; then the choice stays.
    bool go(Go where);
    /// Chooses the tile nearest to where the last one lay.
    bool chooseNearest();

    /// What a press on the chosen tile would be; without one, a press in the middle of the free board.
    Press press() const;
    /// The chosen tile's place in pixels of the board, or an empty rectangle.
    QRect frame() const;

    /// A key was used last, or a pointer was: only with keys the frame is seen.
    void setByKeys(bool byKeys);
    bool isSeen() const;

signals:
    /// Another tile is chosen, or none, or the chosen one has another place or text.
    void changed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// What a tile is known by when its object has been replaced.
    struct Mark
    {
        QPoint place;
        Colour back = 0;
        QString text;
        bool operator==(const Mark &) const = default;
    };

    void findAgain();
    void mark(const cWortel *tile);
    void showFrame();
    const cWortel *nearest(Go where) const;
    const cWortel *inOrder(Go where) const;

    const MainControls &controls_;
    const Canvas &canvas_;
    const TileStore &store_;
    const cWortel *tile_ = nullptr; ///< looked into only after it was found in the store
    Mark mark_;                     ///< of the chosen tile, or of the last one
    bool byKeys_ = false;
};
