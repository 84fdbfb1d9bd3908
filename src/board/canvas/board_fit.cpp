// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/canvas/board_fit.h"

#include "board/canvas/canvas.h"
#include "platform/boxes.h"
#include "platform/ground.h"
#include "platform/note_texts.h"
#include "platform/notes.h"
#include "platform/product.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int fitAndStay = 10; ///< the code of the buttons "Einpassen" and "So lassen"
constexpr int toFit = 0;

} // namespace

BoardFit::BoardFit(Ground &ground, Canvas &canvas)
    : ground_(ground)
    , canvas_(canvas)
{}

bool BoardFit::isOn() const { return !canvas_.view().isPlain(); }

QRect BoardFit::room() const
{
    const BoardMeasures &window = canvas_.store().measures();
    return {0, 0, window.ScaleWidth(), window.BandTop()};
}

QRect BoardFit::allTiles() const
{
    QRect all;
    for (const auto &tile : canvas_.store().tiles())
        if (tile->Extent() > 0)
            all = all.united(tile->box());
    return all;
}

bool BoardFit::isWanted() const
{
    const TileList &tiles = canvas_.store().tiles();
    return std::any_of(tiles.begin(), tiles.end(), [seen = room()](const auto &tile) {
        return tile->Extent() > 0 && !seen.contains(tile->box().center());
    });
}

void BoardFit::offer()
{
    if (isOn())
        follow();
    if (isOn() || !isWanted())
        return;
    const int answer =
        ground_.boxes.ShowMBox(u"Einige Bausteine liegen außerhalb des Fensters.\n\n"
                               "Soll das Spielfeld kleiner gezeigt werden, so dass alle zu sehen sind?"_s,
                               true, fitAndStay, product::name, BoxStyle::Confirm);
    if (answer == toFit)
        fit();
}

void BoardFit::fit() { canvas_.setView(isWanted() ? BoardView::of(allTiles(), room().size()) : BoardView()); }

void BoardFit::toggle()
{
    if (isOn())
        leave();
    else if (isWanted())
        fit();
    else
        ground_.notes.tell(note::allSeen);
}

void BoardFit::follow()
{
    if (!isOn())
        return;
    const BoardView view = canvas_.view();
    const QRect seen(view.toBoard({0, 0}), view.toBoard({room().right(), room().bottom()}));
    if (!isWanted() || !seen.contains(allTiles().adjusted(1, 1, -1, -1)))
        fit();
}

void BoardFit::resized()
{
    if (isOn())
        fit();
}

void BoardFit::leave() { canvas_.setView({}); }
