// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "board/tiles/places.h"

#include <QObject>
#include <QString>

class Canvas;
class QWidget;
class TileStore;
struct Ground;
struct MainControls;
struct Modes;
struct WordLists;

/// Lays tiles at free random places: random sampling against the crude overlap test, with a limit on tries.
/// Only one search runs at a time (`PlacingBusy`); one that is started in a yield returns at once. Input is
/// let in only while some waits.
class Placement : public QObject
{
    Q_OBJECT

public:
    Placement(Ground &ground, const MainControls &controls, Modes &modes, const WordLists &lists,
              Canvas &canvas);

    /// Lays `count` Wortel tiles from the stem list, at random or, with "Alle" checked, in list order. The
    /// limit ends it in silence.
    void PlaceWortelFree(int count);
    /// Lays `count` Wortel tiles of that text. It has no limit: on a full board it does not come back, so its
    /// callers lay no more tiles than the board has room for. No counter is touched.
    void NoWortelCollision2(int count, const QString &text);
    /// Lays `count` tiles. At the limit it asks whether to go on. True if placement was given up. No counter
    /// but the total is touched.
    bool MorphemeCollision(int count, const QString &text, Colour back, Colour textColour);

    /// The user's "X": the running search ends.
    void stop();

    /// Tries allowed in one search: the setting times 1000, taken when the settings are applied. 0 is never
    /// reached, so it allows any number.
    int tryLimit() const { return tryLimit_; }
    void setTryLimit(int tries) { tryLimit_ = tries; }
    void takeTryLimit();

    /// Moves a control to the middle of the window above the lower band.
    static void CenterOnFreeSpace(const MainControls &controls, QWidget &control);

private:
    enum class Found { Place, Limit, Stopped };
    class Tally;
    Found searchWortel(places::Place &place, long long &tries, Tally &tally);
    bool askToGoOn(long long limit);
    void giveUp();

    Ground &ground_;
    const MainControls &controls_;
    Modes &modes_;
    const WordLists &lists_;
    Canvas &canvas_;
    TileStore &store_;
    int tryLimit_ = 0;
    bool TriedAgain_ = false;
};
