// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "board/tiles/tile_store.h"

#include <QAccessible>
#include <QObject>

#include <unordered_map>

class BoardFocus;
class Canvas;
class PictureBox;
struct BoardView;
struct MainControls;

/// Tells a screen reader of the board: every tile that the filter shows is a child of it, in the store's
/// order. It says when a tile is picked up, dropped and reached by the keys, and what comes into the word
/// field while the keyboard is elsewhere. It keeps nothing for a tile until a reader asks for it, and
/// whatever it keeps is checked against the store, so that a reader may ask at any time that events run.
class BoardReader : public QObject
{
    Q_OBJECT

public:
    BoardReader(const MainControls &controls, Canvas &canvas, BoardFocus &focus);
    ~BoardReader() override;

    PictureBox &board() const;
    /// How the board is seen.
    const BoardView &view() const;
    /// The tiles that the filter shows.
    std::vector<const cWortel *> shown() const { return store_.shown(); }
    /// What speaks for one of the store's tiles.
    QAccessibleInterface *interfaceOf(const cWortel *tile);
    /// True if the store has that tile and the filter shows it.
    bool has(const cWortel *tile) const;
    const cWortel *chosen() const;
    bool isChosen(const cWortel *tile) const { return tile == chosen(); }
    /// True if the keys act on that tile.
    bool hasKeyboard(const cWortel *tile) const;

    /// Gives the keyboard to a tile. Nothing for one that has gone.
    void choose(const cWortel *tile);
    /// The same, and then the key as if a hand had pressed it, from the event loop.
    void press(const cWortel *tile, Qt::Key key);
    /// A tile that has gone, while the reader is told so.
    bool isLeaving(const cWortel *tile) const { return tile == leaving_; }
    /// A reader has asked for all tiles: from now on it is told which come and go.
    void setListed() { listed_ = true; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// A tile that a reader knows, and what it was told of it.
    struct Known
    {
        QAccessible::Id id;
        QPoint place;
        QString text;
    };

    void onDrawn();
    void forgetGone();
    void tellMoved();
    void tellNew();
    void onPicked();
    void tellDropped();
    void tellFocus();
    void onWord(const QString &word);

    const MainControls &controls_;
    const Canvas &canvas_;
    TileStore &store_;
    BoardFocus &focus_;
    std::unordered_map<const cWortel *, Known> known_;
    const cWortel *leaving_ = nullptr; ///< only compared, as the next
    const cWortel *held_ = nullptr;
    QString heldName_;
    bool listed_ = false;
};
