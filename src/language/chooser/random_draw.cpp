// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/chooser/random_draw.h"

#include "platform/rnd.h"
#include "platform/work.h"

RandomDraw::RandomDraw(Rnd &rnd, int rows)
    : rnd_(rnd)
    , taken_(static_cast<std::size_t>(rows))
{}

std::optional<int> RandomDraw::round(Work &work)
{
    while (!taken_.empty() && work.goesOn()) {
        rnd_.Randomize();
        const int row = rnd_.absInt(static_cast<double>(taken_.size()));
        if (!taken_[static_cast<std::size_t>(row)]) {
            taken_[static_cast<std::size_t>(row)] = true;
            return row;
        }
        if (repeats_ < repeatLimit && ++repeats_ == repeatLimit)
            return std::nullopt;
    }
    return std::nullopt;
}
