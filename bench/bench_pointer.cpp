// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench.h"

#include "support/test_hand.h"

namespace {

constexpr int tiles = 500;
constexpr int moves = 100;

/// A board of many tiles, the first of them at 10, 60.
std::unique_ptr<TestHand> fullHand(const QSize &window = {1920, 1080})
{
    auto hand = std::make_unique<TestHand>(1, window);
    const int right = window.width() - 120;
    const int bottom = window.height() - 280;
    for (int i = 0; i < tiles; ++i)
        hand->lay(wortel, 10 + i * 61 % right, 60 + i * 37 % bottom, QStringLiteral("fahr"));
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

/// A drag over the largest screen, each move painted, to painting what each changed and nothing else.
double largestDragToChangedRectangle()
{
    const auto hand = fullHand({3840, 2160});
    hand->form.show();
    hand->settle();
    hand->press({15, 70});
    const auto place = [](int step) { return QPoint(100 + 3 * step, 200 + 2 * step); };
    const auto drag = [&] {
        for (int i = 0; i < moves; ++i) {
            hand->drag(place(i));
            QCoreApplication::processEvents(); // paints it
        }
    };
    const auto rectangles = [&] { // with the tile in them, which is a part of the picture
        const QSize held = hand->controls.BtnMove1->size();
        for (int i = 0; i < moves; ++i) {
            hand->controls.picCanvas->repaint(QRect(place(i - 1), held).united(QRect(place(i), held)));
            hand->controls.BtnMove1->repaint();
        }
    };
    return bench::ratio(drag, rectangles);
}

const bench::Row largestRow{"pointer: a drag at 3840x2160 to painting what it changes", 1.5,
                            largestDragToChangedRectangle};
const bench::Row movesRow{"pointer: a move of a held tile to a full redraw of 500", 0.1, movesToRedraw};
const bench::Row clickRow{"pointer: pick a tile up and let it go to a full redraw of 500", 1.5,
                          clickToRedraw};

} // namespace
