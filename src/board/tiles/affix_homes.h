// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <vector>

/// Where an affix of the first board lies, and what it says.
struct AffixHome
{
    int x = 0; ///< pixels
    int y = 0;
    QString text;
};

/// The home places of the two affix rows (the system's `PrefixHomeX`, `PrefixHomeY`, `PrefixHomeText` and
/// their twins for suffixes), filled at the start of the program.
struct AffixHomes
{
    std::vector<AffixHome> prefixes;
    std::vector<AffixHome> suffixes;
};
