// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench.h"

#include "board/tiles/places.h"
#include "support/test_board.h"
#include "widgets/accessible_tools.h"
#include "widgets/colour.h"

#include <QAccessible>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize fullHd(1920, 1080);

QString stem(int i) { return u"stem%1"_s.arg(i); }

/// A board with `count` tiles at random, two thirds of them Wortel tiles.
std::unique_ptr<TestBoard> filledBoard(int count)
{
    auto board = std::make_unique<TestBoard>(1, fullHd);
    Rnd rnd(2);
    for (int i = 0; i < count; ++i) {
        const auto [x, y] = places::randomPlace(rnd, places::addedWortel, board->r.measures);
        board->lay(i % 3 == 2 ? prefix : wortel, x, y, stem(i));
    }
    return board;
}

/// The same boxes and texts without a tile, a store or a cache.
void drawBare(TestBoard &board)
{
    PictureBox &box = *board.controls.picCanvas;
    box.cls();
    QPainter painter(&box.image());
    QFont font = box.font();
    font.setBold(true);
    painter.setFont(font);
    const int ascent = painter.fontMetrics().ascent();
    for (const auto &tile : board.store->tiles()) {
        const QRect rect(tile->xLeft(), tile->yTop(), tile->Extent(), cWortel::height);
        painter.fillRect(rect, toQColor(tile->BGColor));
        painter.setPen(Qt::white);
        painter.drawRect(rect);
        painter.setPen(toQColor(tile->TxtColor));
        painter.drawText(tile->xLeft() + 2, tile->yTop() + 5 + ascent, tile->txt);
    }
}

double drawTiles()
{
    const auto board = filledBoard(1000);
    return bench::ratio([&] { board->canvas->CanvasRedrawAll(); }, [&] { drawBare(*board); });
}

double inRedraws(int count, int filter, const std::function<void(TestBoard &)> &work)
{
    const auto board = filledBoard(count);
    board->optTypes->select(filter);
    return bench::ratio([&] { work(*board); }, [&] { board->canvas->CanvasRedrawAll(); });
}

/// A redraw with the room that speaks to screen readers, over one without it.
double readerInRedraws(bool asked)
{
    installAccessibleTools();
    const auto board = filledBoard(500);
    const auto alone = filledBoard(500);
    QObject::disconnect(alone->canvas, nullptr, &alone->r.reader, nullptr);
    if (asked) {
        QAccessibleInterface *tiles = QAccessible::queryAccessibleInterface(board->controls.picCanvas);
        for (int i = 0; i < tiles->childCount(); ++i)
            bench::keep(tiles->child(i));
    }
    return bench::ratio([&] { board->canvas->CanvasRedrawAll(); }, [&] { alone->canvas->CanvasRedrawAll(); },
                        25);
}

/// A surface that paints nothing: what is measured is the search.
class NoSurface : public TileSurface
{
public:
    void fillBox(int, int, int, int, Colour) override {}
    void outlineBox(int, int, int, int, Colour) override {}
    void printText(int, int, const QString &, Colour) override {}
    void clear() override {}
};

double placeTiles()
{
    TestBoard board(1, fullHd);
    NoSurface noSurface;
    TileStore store(board.t.ground, *board.optTypes, *board.optTypes, noSurface, *board.measures);
    Canvas canvas(board.t.ground, board.controls, board.form.sheet(), store, *board.surface, *board.optTypes);
    Placement placement(board.t.ground, board.controls, board.lists, canvas);
    placement.setTryLimit(1'000'000);
    constexpr int tiles = 200;

    // Both sides start from the same seed, so that they make the same tries.
    const auto placeAll = [&] {
        board.t.rnd = Rnd(11);
        store.takeAll();
        placement.PlaceWortelFree(tiles);
    };
    const auto bare = [&] {
        Rnd rnd(11);
        std::vector<places::Place> placed;
        while (placed.size() < tiles) {
            rnd.Randomize();
            bench::keep(rnd.absInt(3));
            places::Place place;
            do {
                place.x = rnd.absInt(fullHd.width(), -100);
                place.y = rnd.absInt(fullHd.height(), -185) + 35;
            } while (std::any_of(placed.cbegin(), placed.cend(), [place](const places::Place &other) {
                return place.x < other.x + 39 && other.x < place.x + 39 && place.y < other.y + 26 &&
                       other.y < place.y + 26;
            }));
            placed.push_back(place);
        }
        bench::keep(placed);
    };
    return bench::ratio(placeAll, bare, 50);
}

const bench::Row rows[] = {
    {"board: draw 1,000 tiles", 1.3, drawTiles},
    {"board: RecallFilter on 500 tiles (redraws)", 2.5,
     [] { return inRedraws(500, 0, [](TestBoard &b) { b.canvas->RecallFilter(0); }); }},
    {"board: place 200 tiles without overlap", 2.0, placeTiles},
    {"board: shuffle 500 tiles (redraws)", 3.0,
     [] { return inRedraws(500, 0, [](TestBoard &b) { b.bulk->ShuffleAllMorpheme(); }); }},
    {"board: sort 500 tiles (redraws)", 3.0,
     [] {
         int run = 0;
         return inRedraws(500, 0, [&run](TestBoard &b) {
             if (run++ > 0) // the first call finds the tiles unsorted, the others get them shuffled by hand
                 for (int i = 0; i < b.store->count(); ++i)
                     b.store->tiles()[static_cast<std::size_t>(i)]->txt = stem(i * 7919 % 500);
             b.arrangement->SortMorphemeAscending(false);
         });
     }},
    {"board: redraw 500 tiles while no screen reader asks (without the reader's room)", 1.1,
     [] { return readerInRedraws(false); }},
    {"board: redraw 500 tiles that a screen reader knows (without the reader's room)", 1.5,
     [] { return readerInRedraws(true); }},
};

} // namespace
