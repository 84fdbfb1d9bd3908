// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/tiles/random_array.h"

#include "platform/rnd.h"
#include "platform/text.h"

#include <algorithm>
#include <cstddef>

void RandomArray(const std::vector<int> &source, std::vector<int> &out, Rnd &rnd)
{
    if (source.empty())
        return;
    rnd.Randomize();
    std::vector<int> working = source;
    out.clear();
    out.reserve(source.size());
    while (!working.empty()) {
        const auto remaining = static_cast<double>(working.size());
        const double drawn = std::min(Round(rnd() * remaining + 1), remaining);
        const auto place = working.begin() + static_cast<std::ptrdiff_t>(drawn) - 1;
        out.push_back(*place);
        working.erase(place);
    }
}
