// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "board/canvas/canvas_surface.h"
#include "board/tiles/tile_store.h"

#include <QObject>
#include <QPoint>

class ControlSheet;
class OptTypes;
class Procedure;
struct Ground;
struct MainControls;

/// Keeps the board's picture true to the tile store: redraws, filters, removes tiles, picks a tile up with
/// its floating copy. There is no partial repainting: what removes or reorders something clears the surface
/// and draws all visible tiles again.
class Canvas : public QObject
{
    Q_OBJECT

public:
    static constexpr int heldHeight = 26; ///< pixels: a held tile looks lifted

    Canvas(Ground &ground, const MainControls &controls, ControlSheet &sheet, TileStore &store,
           CanvasSurface &surface, OptTypes &optTypes);

    TileStore &store() const { return store_; }
    CanvasSurface &surface() const { return surface_; }

    /// How the board is seen. Setting it draws the board anew.
    const BoardView &view() const { return surface_.view(); }
    void setView(const BoardView &view);

    void CanvasRedrawAll();
    /// Draws only the tiles of the selected kind; nothing while "Alle" is selected.
    void CanvasFilterAndDraw();
    /// Draws what the filter shows, and lets nothing run: for what Qt calls from within its own walks, and
    /// for every change while a filter is on, so that nothing hidden flashes.
    void repaint();
    /// Draws other tiles than those of the store, over nothing: what a work has laid so far.
    void drawTiles(const TileList &tiles);
    /// Draws what the filter shows on another surface: on paper.
    void drawShown(TileSurface &paper) const;
    /// Draws every tile black on white on another surface.
    void DrawMonoChrome(TileSurface &paper) const;
    /// Removes the tile of that kind and text whose corner lies at `place`. The kind's own counter stays: the
    /// callers lower it.
    void CanvasEraseWortel(QPoint place, const QString &text, Colour kind);
    /// Removes all tiles of that back colour; serves all three kinds despite its name.
    void CanvasEraseAllAffix(Colour colour);
    /// Gives the tile of that kind whose corner lies at `place` a new text. It moves to the top of the
    /// drawing order. Nothing for a colour that no kind has, or if no tile lies there.
    void EditObject(QPoint place, const QString &text, Colour kind);

    /// Picks up the first tile under the point that the filter shows, and shows its floating copy.
    bool CanvasSelectWortel(int x, int y);
    void CanvasUnSelectAllWortel();
    /// Restores filter `index` and repaints the board without flicker.
    void RecallFilter(int index);

    /// True in the mode "Ziehmodus Wortkontrolle", but for the time of a drop.
    bool WordCheckDrag() const { return WordCheckDrag_; }
    void setWordCheckDrag(bool on) { WordCheckDrag_ = on; }

public slots:
    void OptType_Click(int index);
    void Option1_Click(int index);
    void Check1_Click();

signals:
    /// The board shows the store's tiles as they are now. Comes from within walks of Qt as well: who hears it
    /// lets nothing run.
    void drawn();
    /// A tile was picked up: it is the store's current one.
    void picked();
    /// A tile was picked up in the mode "Ziehmodus Wortkontrolle": a drag of `BtnMove1` begins.
    void wordCheckDragBegins();

private:
    void draw(const TileList &tiles, bool everyKind);
    void drawStore(bool everyKind);
    void showHeld(const cWortel &tile);
    void eraseTile(Procedure &step, int index);

    Ground &ground_;
    const MainControls &controls_;
    ControlSheet &sheet_;
    TileStore &store_;
    CanvasSurface &surface_;
    OptTypes &optTypes_;
    bool WordCheckDrag_ = false;
};
