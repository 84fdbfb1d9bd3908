// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPoint>

class FloatingTile;
struct MainControls;

/// The drag of a tile to the word field: a copy of `BtnMove1` follows the pointer over the whole window, and
/// the field is highlighted while the pointer is over it. It is made of plain mouse events, so that mouse and
/// finger do the same. The tile itself stays where it lies.
class TileDrag
{
public:
    explicit TileDrag(const MainControls &controls);

    bool isActive() const { return active_; }
    /// Begins at a point of the screen, with what `BtnMove1` shows.
    void begin(const QPoint &pointer);
    void moveTo(const QPoint &pointer);
    /// Ends the drag and removes all its marks. Returns true if the pointer is over the word field.
    bool end(const QPoint &pointer);
    void cancel();

private:
    bool isOverField(const QPoint &pointer) const;
    void highlight(bool on);

    const MainControls &controls_;
    FloatingTile *copy_; ///< owned by the window
    QPoint grip_;        ///< from the tile's corner to the pointer
    bool active_ = false;
    bool over_ = false;
};
