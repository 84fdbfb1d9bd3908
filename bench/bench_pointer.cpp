// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench.h"

#include "support/test_hand.h"

namespace {

constexpr int tiles = 500;
constexpr int moves = 100;

/// A board of many tiles, the first of them at 10, 60.
std::unique_ptr<TestHand> fullHand()
{
    auto hand = std::make_unique<TestHand>(1, QSize(1920, 1080));
    for (int i = 0; i < tiles; ++i)
        hand->lay(wortel, 10 + i * 61 % 1800, 60 + i * 37 % 800, QStringLiteral("fahr"));
    return hand;
}

double movesToRedraw()
{
    const auto hand = fullHand();
    hand->press({15, 70});
    const auto move = [&] {
        for (int i = 0; i < moves; ++i)
            hand->drag({100 + i, 200 + i});
    };
    return bench::ratio(move, [&] { hand->canvas->CanvasRedrawAll(); }) / moves;
}

double clickToRedraw()
{
    const auto hand = fullHand();
    return bench::ratio(
        [&] {
            hand->click({15, 70}, Qt::LeftButton);
        },
        [&] { hand->canvas->CanvasRedrawAll(); });
}

const bench::Row movesRow{"pointer: a move of a held tile to a full redraw of 500", 0.1, movesToRedraw};
const bench::Row clickRow{"pointer: pick a tile up and let it go to a full redraw of 500", 1.5,
                          clickToRedraw};

} // namespace
