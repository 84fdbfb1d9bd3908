// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "persistence/snapshot_ring.h"
#include "platform/play_state.h"

#include <QObject>

class BoardNews;
class BulkTiles;
class Canvas;
class ListLoader;
class WordCheck;
struct Ground;
struct MainControls;
struct WordLists;

/// The board of Tonarin: stems with a short and with a long vowel lie on it, and the word check asks for one
/// of the two kinds. It stands as long as one of the boxes `ChkVokal` is on; afterwards the stem list of the
/// options comes back.
class VowelBoard : public QObject
{
    Q_OBJECT

public:
    /// The rooms that the board calls.
    struct Rooms
    {
        WordCheck &check;
        BulkTiles &bulk;
        Canvas &canvas;
        ListLoader &loader;
        BoardNews &news;
    };

    VowelBoard(Ground &ground, const MainControls &controls, WordLists &lists, const Rooms &rooms);

    /// A press on box `Index`, 0 short, 1 long. Left: the box has been switched, the board follows. Right, on
    /// a box that is off: the window of the sounds.
    void ChkVokal_MouseDown(int Index, Qt::MouseButton button);
    /// Makes the board of the box that is on, with stems of both kinds, for the task is to tell one from the
    /// other. Without stems, or without a number of tiles, the boxes are switched off and all stays as it
    /// was.
    void load();
    /// Both boxes are off: stem list and dictionary of the options come back, or the list that was in use if
    /// that file is gone, and the board is filled from them.
    void RestoreAfterVokal();
    /// Another board is opened: boxes off, lists back, the tiles are left to whoever opens it.
    void makeRoom();
    /// Undo or redo has put a board back. With the one that lay there before, its lists come back too.
    void boardSteps();
    /// The stem list that comes back afterwards, stored form; empty if there is no such board.
    QString usedBefore() const { return usedBefore_; }
    /// The tiles that lay there before.
    const Snapshot &boardBefore() const { return boardBefore_; }
    /// The board lies already: it was made before the window was.
    void goOn(const QString &usedBefore, const Snapshot &boardBefore);
    /// Says the vowel of a stem of the table, by the setting of the sounds.
    void PlayTheVokal(const QString &Word);

private:
    void giveUp();
    void switchOff();
    void restoreLists();
    void removeAffixes();

    Ground &ground_;
    const MainControls &controls_;
    WordLists &lists_;
    Rooms rooms_;
    QString usedBefore_; ///< the stem list in use when the board was made, stored form
    Snapshot boardBefore_;
};
