// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <vector>

class Rnd;
class Work;

/// Draws different rows of a list at random, one a round. The draws that hit a row again are counted over all
/// rounds, and the round in which the count reaches the limit is given up: only that one, because the count
/// goes on. So more rounds than a list has rows end by a cancel alone, which stays as it is.
class RandomDraw
{
public:
    static constexpr int repeatLimit = 500;

    RandomDraw(Rnd &rnd, int rows);

    /// A row that was not drawn before; none if the round is given up, the work is cancelled or the list is
    /// empty. Events run between the draws.
    std::optional<int> round(Work &work);

private:
    Rnd &rnd_;
    std::vector<bool> taken_;
    int repeats_ = 0;
};
