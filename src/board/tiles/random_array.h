// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

class Rnd;

/// Fills `out` with a permutation of `source`. Because of the rounding of each draw the first place is drawn
/// less often than the others and the last more often, which is how the program shuffles. Nothing for an
/// empty source.
void RandomArray(const std::vector<int> &source, std::vector<int> &out, Rnd &rnd);
