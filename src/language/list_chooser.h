// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <functional>

class BoardNews;
class CommandRouter;
class ListLoader;
class TileStore;
struct Ground;
struct MainControls;
struct TileKind;
struct WordLists;

/// What the teacher does with the lists by hand: choosing stem lists or dictionaries in a file dialog (the
/// right presses on `Check2` and `Command3`), and laying a tile with a click on a list's entry.
class ListChooser : public QObject
{
    Q_OBJECT

public:
    /// What the board does for the gestures.
    struct BoardCalls
    {
        std::function<bool()> Refill;   ///< deals new tiles from the lists
        std::function<void()> DoOnDrop; ///< takes a tile over as if it had been dropped
    };

    ListChooser(Ground &ground, const MainControls &controls, WordLists &lists, ListLoader &loader,
                TileStore &tiles, BoardNews &news, BoardCalls board, QObject *parent = nullptr);
    void registerCommands(CommandRouter &router);

    /// The right press on `Check2`: one or several stem lists with their dictionaries, and a new board.
    void chooseStemLists();
    /// The right press on `Command3`: one or several dictionaries. `CurrentLexiconFile` keeps naming the one
    /// of the stem list.
    void chooseDictionaries();

    // A click on a row: a new tile of that text. Each passes the gate.
    void WortelList_Click(int row);
    void PrefixList_Click(int row);
    void SuffixList_Click(int row);

signals:
    /// Stem lists were chosen: what was made of the old ones ends.
    void listsChosen();

private:
    void tellLoaded(const QStringList &paths);
    void layTile(const TileKind &kind, int row);

    Ground &ground_;
    const MainControls &controls_;
    WordLists &lists_;
    ListLoader &loader_;
    TileStore &tiles_;
    BoardNews &news_;
    BoardCalls board_;
};
