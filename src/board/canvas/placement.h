// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "board/tiles/places.h"

#include <QObject>
#include <QString>

#include <functional>
#include <limits>

class Canvas;
class QWidget;
class TileStore;
class Work;
struct Ground;
struct MainControls;
struct WordLists;

/// Lays tiles at free random places: random sampling against the crude overlap test, with a limit on tries.
/// A search is a work, which lets input in and can be stopped; what it has laid lies beside the store until
/// its caller takes it over.
class Placement : public QObject
{
    Q_OBJECT

public:
    static constexpr int noBound = std::numeric_limits<int>::max();
    /// Tries that a hidden window is given, which nobody can stop: about a tenth of a second on a full board.
    static constexpr int startBound = 100'000;

    Placement(Ground &ground, const MainControls &controls, const WordLists &lists, Canvas &canvas);

    /// Lays `count` Wortel tiles from the stem list, at random or, with "Alle" checked, in list order, and
    /// appends them to the store. The limit, or `bound` tries, end it in silence. Returns how many were laid.
    int PlaceWortelFree(int count, int bound = noBound);
    /// The same for a board that is made anew: beside the tiles of `laid`, and into it.
    void layWortelFree(int count, TileList &laid, int bound = noBound);
    /// Lays `count` Wortel tiles of that text into `laid`. It has no limit: on a full board it does not come
    /// back by itself, so its callers lay no more tiles than the board has room for. No counter is touched.
    void NoWortelCollision2(int count, const QString &text, TileList &laid, Work &work);
    /// Lays one tile into `laid`. At the limit it asks whether to go on. True if placement was given up. No
    /// counter but the total is touched.
    bool MorphemeCollision(const QString &text, const TileKind &kind, TileList &laid, Work &work);

    /// Tries allowed in one search: the setting times 1000, taken when the settings are applied. 0 is never
    /// reached, so it allows any number.
    int tryLimit() const { return tryLimit_; }
    void setTryLimit(int tries) { tryLimit_ = tries; }
    void takeTryLimit();

    /// Moves a control to the middle of the window above the lower band.
    static void CenterOnFreeSpace(const MainControls &controls, QWidget &control);

private:
    class Tally;
    using IsTaken = std::function<bool(const places::Place &)>;
    void searchWortels(int count, int bound, const IsTaken &isTaken, TileList &laid);
    QString nextStem(int row);
    bool askToGoOn(const TileList &laid);

    Ground &ground_;
    const MainControls &controls_;
    const WordLists &lists_;
    Canvas &canvas_;
    TileStore &store_;
    int tryLimit_ = 0;
    bool TriedAgain_ = false;
};
