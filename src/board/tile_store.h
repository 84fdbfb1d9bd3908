// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "board/tile.h"

#include <memory>
#include <vector>

/// The ordered collection `Tiles`. Its order is at once drawing, hit-test and save order: the first inserted is drawn first, found first, saved first.
using TileList = std::vector<std::unique_ptr<cWortel>>;

/// The four tile counters. They are the captions of `OptType(0..3)` and exist nowhere else: this type reads and writes them through two functions, so that
/// the store needs no window. Index 0 Wortel, 1 prefix, 2 suffix, 3 all.
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
    /// Index 3 := sum of the other three, in 16-bit arithmetic (throws RuntimeError 6).
    void updateTotal();
};

/// The filter: which of the four option buttons is on. Same split as the counters.
class TileFilter
{
public:
    virtual ~TileFilter() = default;
    virtual int selected() const = 0;
    /// Selects button `index` as the program does it: a click fires only if it was not selected.
    virtual void select(int index) = 0;
};
