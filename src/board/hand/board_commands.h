// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "board/hand/commands.h"
#include "board/tiles/tile_kind.h"

#include <QObject>
#include <QPoint>
#include <QString>

#include <optional>

class Arrangement;
class BulkTiles;
class Canvas;
class MenuModel;
class MorphemeLists;
class Placement;
class TileStore;
struct Ground;
struct MainControls;
struct Modes;
struct WordLists;

/// What was pressed: the point on the board, the filter at that moment, and the tile that lay there.
struct Press
{
    QPoint point;                   ///< pixels of the board
    int filter = 3;                 ///< index of the selected filter
    const TileKind *kind = nullptr; ///< of the tile under the point that the filter shows, or nullptr
    QString text;
    QString place; ///< "x,y" of the tile
};

/// Carries out the commands of the board, whether they come from a menu, a key or a press, with their
/// notices, questions, sounds and endings. What another room does is announced by its number.
class BoardCommands : public QObject
{
    Q_OBJECT

public:
    /// The rooms whose procedures the commands call.
    struct Rooms
    {
        Canvas &canvas;
        Placement &placement;
        BulkTiles &bulk;
        Arrangement &arrangement;
        MorphemeLists &morphemeLists;
        MenuModel &menus;
    };

    BoardCommands(Ground &ground, const MainControls &controls, const WordLists &lists, Modes &modes,
                  const Rooms &rooms);

    /// Looks under the point: kind, text and place of the tile that the filter shows there.
    Press pressAt(const QPoint &point);

    /// Carries out the command of that number, as chosen at `press`. An unknown number does nothing.
    /// `itemIndex` is the menu item's index, which a line of the error log names.
    void run(command::From from, int id, const Press &press, int itemIndex = 0);
    /// A key by its control character. Returns false if it is none of the board's.
    bool runKey(int code);

    // What the pointer does without a menu
    void insertAt(const Press &press, int kindIndex);
    void duplicateAt(const Press &press);
    void removeAt(const Press &press);

    /// The two endings of a command: the board has changed; the filter comes back.
    void Commit();
    void Recall(int filter);
    void backUp();

signals:
    /// The board was changed by a command: undo takes its snapshot, the backup is written.
    void committed();
    /// The backup alone is to be written.
    void backupWanted();
    /// A command of another room.
    void commandChosen(int id);

private:
    /// How much of a command's ending is due after its action.
    enum class Ending { Whole, RecallOnly, None };
    using Action = Ending (BoardCommands::*)(const command::Command &, const Press &);

    static Action action(command::Does does);
    void carryOut(const command::Command &command, const Press &press, const char *procedure, int itemIndex);
    bool isAllowed(const command::Command &command);
    bool isAgreed(const command::Command &command);
    bool hasWhatItNeeds(const command::Command &command);
    /// A question with OK and Abbrechen, which counts as agreed without being shown if `show` is false.
    bool ask(const char16_t *question, bool show, const QString &title, const QString &style);
    void tell(const QString &notice);
    void log(const command::Command &command, const char *procedure);
    void play(int sound);
    /// The number of tiles it is about, or nothing if the user has to mend the box first.
    std::optional<int> number(const command::Command &command);

    Ending otherRoom(const command::Command &, const Press &);
    Ending showTip(const command::Command &, const Press &);
    Ending editTile(const command::Command &, const Press &);
    Ending removeTile(const command::Command &, const Press &);
    Ending toggleCapitals(const command::Command &, const Press &);
    Ending copyTile(const command::Command &, const Press &);
    Ending showList(const command::Command &, const Press &);
    Ending selectFilter(const command::Command &, const Press &);
    Ending insert(const command::Command &, const Press &);
    Ending refill(const command::Command &, const Press &);
    Ending addOneWortel(const command::Command &, const Press &);
    Ending addWortelFree(const command::Command &, const Press &);
    Ending addRandom(const command::Command &, const Press &);
    Ending eraseKind(const command::Command &, const Press &);
    Ending capitalsOfKind(const command::Command &, const Press &);
    Ending shuffleKind(const command::Command &, const Press &);
    Ending replaceAllWortel(const command::Command &, const Press &);
    Ending spreadWortel(const command::Command &, const Press &);
    Ending lineUp(const command::Command &, const Press &);
    Ending toggleLists(const command::Command &, const Press &);
    Ending eraseAll(const command::Command &, const Press &);
    Ending shuffleAll(const command::Command &, const Press &);
    Ending spreadAll(const command::Command &, const Press &);

    Ground &ground_;
    const MainControls &controls_;
    const WordLists &lists_;
    Modes &modes_;
    Rooms rooms_;
    TileStore &store_;
};
