// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "board/tiles/tile.h"
#include "platform/int16.h"

#include <memory>
#include <vector>

struct Ground;

/// The ordered collection `Tiles`. Its order is at once drawing, hit-test and save order: the first inserted
/// is drawn first, found first, saved first.
using TileList = std::vector<std::unique_ptr<cWortel>>;

/// The four tile counters. They are the captions of `OptType(0..3)` and exist nowhere else: this type reads
/// and writes them through two functions, so that the store needs no window. Index 0 Wortel, 1 prefix, 2
/// suffix, 3 all.
class TileCounters
{
public:
    virtual ~TileCounters() = default;
    virtual QString caption(int index) const = 0;
    virtual void setCaption(int index, const QString &text) = 0;

    /// The caption by numeric conversion.
    int value(int index) const;
    void set(int index, int count);
    /// Adds to the kind's caption; with `absolute` the result is made positive, as the erasing commands do.
    void add(int index, int delta, bool absolute = false);
    /// The sum of the counters 0 to 2, in 16-bit arithmetic (throws RuntimeError 6).
    Int16 sum() const;
    /// Index 3 := sum of the other three, in 16-bit arithmetic (throws RuntimeError 6).
    void updateTotal();
};

/// The filter: which of the four option buttons is on. Same split as the counters.
class TileFilter
{
public:
    static constexpr int all = 3;

    virtual ~TileFilter() = default;
    virtual int selected() const = 0;
    /// Selects button `index` as the program does it: a click fires only if it was not selected. Another
    /// index than 0 to 3 does nothing.
    virtual void select(int index) = 0;

    /// True if the filter shows tiles of the kind of that back colour.
    bool shows(Colour back) const;
};

/// The measures of the window that the tiles are made for, all in pixels.
class BoardMeasures
{
public:
    virtual ~BoardMeasures() = default;
    /// Width of `text` in the window's regular font (the board draws in the bold cut, so a long text fills
    /// its tile to the brim).
    virtual int textWidth(const QString &text) const = 0;
    /// Size of the whole window, lower band included.
    virtual int ScaleWidth() const = 0;
    virtual int ScaleHeight() const = 0;
    /// Where the lower band begins, under which a tile could not be taken.
    virtual int BandTop() const = 0;
};

/// Characters of a text that a tile shows: wider than any screen. A file without line ends is one text of
/// millions, which would take a minute to be measured.
inline constexpr qsizetype longestTileText = 10000;

/// The text as a tile shows and measures it: one line, so that line ends, tabs and other control characters
/// are blanks, and no longer than `longestTileText`.
QString tileText(const QString &text);

/// The tiles on the board and the small queries and edits that all board commands are made of. Nothing here
/// redraws the board: a new tile that the filter shows draws itself, everything that removes or reorders
/// tiles is followed by the canvas. The store is whole whenever events can run: who makes the board anew
/// makes the new tiles beside it and swaps them in.
class TileStore
{
public:
    TileStore(Ground &ground, TileCounters &counters, TileFilter &filter, TileSurface &surface,
              BoardMeasures &measures);

    // The collection -------------------------------------------------------------------------------
    const TileList &tiles() const { return tiles_; }
    int count() const { return static_cast<int>(tiles_.size()); }
    bool isEmpty() const { return tiles_.empty(); }
    /// Tiles of one kind on the board, counted anew (the counters are captions and may be stale).
    int countOf(Colour back) const;
    void append(std::unique_ptr<cWortel> tile);
    /// Empties the store into a scratch collection, in store order. Nothing may yield until the tiles are
    /// back.
    TileList takeAll();
    /// Appends the tiles and draws those that the filter shows.
    void appendAll(TileList tiles);
    /// Puts other tiles in the place of all that there are.
    void replaceAll(TileList tiles);
    /// Copies of all tiles, in store order.
    TileList copies() const;
    /// Removes one tile. Throws RuntimeError 9 for an index that is not there.
    void removeAt(int index);
    /// The tiles that the filter shows, in store order.
    std::vector<const cWortel *> shown() const;
    /// Index of the first tile with `Inside(x, y)`, or -1.
    int indexAt(int x, int y) const;

    /// The tile last found by a hit test, or nullptr. It is forgotten when it leaves the store.
    cWortel *current() const { return current_; }
    /// `tile` is one of the store's, or nullptr.
    void setCurrent(cWortel *tile) { current_ = tile; }

    // The operations of the board ------------------------------------------------------------------
    /// A tile that is in no store yet, with its width.
    std::unique_ptr<cWortel> makeTile(Int16 x, Int16 y, const QString &text, Colour back,
                                      Colour textColour) const;
    std::unique_ptr<cWortel> makeTile(Int16 x, Int16 y, const QString &text, const TileKind &kind) const
    {
        return makeTile(x, y, text, kind.back, kind.text);
    }
    /// Appends a new tile and draws it.
    void CanvasDrawWortel(Int16 x, Int16 y, const QString &text, Colour back, Colour textColour);
    /// The kind of the first tile with `Inside` that the filter shows, which becomes the current one, or the
    /// board's back colour, which no tile has.
    Colour TypeOfSelectedWortel(int x, int y);
    /// Removes the first tile of that text, case ignored, as a Wortel tile: counter 0 falls.
    void EraseSpecifiedWortel(const QString &text);
    /// One copy of a tile at x + 20, y, or as near as the board allows. Nothing for a colour that no kind
    /// has.
    void DuplicateObject(Colour kind, const QString &text, int x, int y);
    /// Up to `count` copies that run out to the right in steps of 42 pixels and stop short of the edge, above
    /// the band.
    void DuplicateObject2(Colour kind, const QString &text, int count, int x, int y);

    /// `Extent` of a tile with that text.
    int extentOf(const QString &text) const;
    /// Sets each counter to what lies there.
    void recount();

    TileCounters &counters() const { return counters_; }
    TileFilter &filter() const { return filter_; }
    TileSurface &surface() const { return surface_; }
    const BoardMeasures &measures() const { return measures_; }

private:
    void forget(const cWortel *tile);

    Ground &ground_;
    TileCounters &counters_;
    TileFilter &filter_;
    TileSurface &surface_;
    BoardMeasures &measures_;
    TileList tiles_;
    cWortel *current_ = nullptr;
};
