// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/tiles/affix_rows.h"

#include <array>

namespace {

struct ScreenRow
{
    int width, height, code, suffixOffset;
};

constexpr std::array<ScreenRow, 5> screens{{
    {800, 600, 1, -120},
    {1024, 768, 2, 44},
    {1600, 1200, 3, 300},
    {1280, 1024, 4, 280},
    {1152, 864, 5, 120},
}};

/// From tile `first` to tile `last` the next place is `step` pixels to the right.
struct StepRow
{
    int first, last, step;
};

constexpr std::array<StepRow, 4> prefixSteps{{{8, 8, 45}, {9, 9, 29}, {13, 13, 92}, {1, 20, 37}}};

constexpr std::array<StepRow, 10> suffixSteps{{
    {1, 2, 33},
    {3, 3, 42},
    {4, 4, 30},
    {5, 6, 33},
    {7, 7, 77},
    {8, 12, 35},
    {13, 13, 77},
    {14, 16, 40},
    {17, 17, 44},
    {18, 20, 35},
}};

template <typename Table> int stepFrom(const Table &table, int i)
{
    for (const StepRow &row : table)
        if (i >= row.first && i <= row.last)
            return row.step;
    return 0;
}

} // namespace

int affix_rows::GetScreenResolution(int width, int height)
{
    for (const ScreenRow &row : screens)
        if (row.width == width && row.height == height)
            return row.code;
    return 1;
}

int affix_rows::prefixStep(int i) { return stepFrom(prefixSteps, i); }

int affix_rows::suffixStep(int i) { return stepFrom(suffixSteps, i); }

int affix_rows::suffixTop(int scaleHeight, int screenCode, int addToPosition)
{
    int offset = screens.front().suffixOffset;
    for (const ScreenRow &row : screens)
        if (row.code == screenCode)
            offset = row.suffixOffset;
    return scaleHeight + offset + 10 * addToPosition;
}
