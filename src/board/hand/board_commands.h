// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "board/hand/command_router.h"

#include <optional>

class Arrangement;
class BulkTiles;
class MorphemeLists;
class Placement;
class TileStore;
struct MainControls;

/// What the commands of the board do: the tile under the pointer, one tile more, many tiles, views.
class BoardCommands
{
public:
    /// The rooms whose procedures the commands call.
    struct Rooms
    {
        Canvas &canvas;
        Placement &placement;
        BulkTiles &bulk;
        Arrangement &arrangement;
        MorphemeLists &morphemeLists;
    };

    /// Registers its numbers at the router.
    BoardCommands(Ground &ground, const MainControls &controls, CommandRouter &router, BoardNews &news,
                  const Rooms &rooms);

    // What the pointer does without a menu
    /// Inserts a tile of that kind at the press, if the filter shows the kind.
    void insertAt(const Press &press, int kindIndex);
    /// One copy; the commit runs on an empty spot, too.
    void duplicateAt(const Press &press);
    void removeAt(const Press &press);

private:
    using Command = command::Command;

    void registerTileCommands();
    void registerKindCommands();
    void registerBoardCommands();
    /// The number of tiles it is about, or nothing if the user has to mend the box first.
    std::optional<int> number(const Command &command, const TileKind &kind);

    /// Whether a tile lies there; if not, a note says so.
    bool lies(const Press &press);
    Ending editTile(const Press &press);
    Ending removeTile(const Press &press);
    Ending toggleCapitals(const Press &press);
    Ending copyTile(const Command &command, const Press &press);
    Ending insert(const Command &command, const Press &press);
    Ending addWortelFree();

    Ground &ground_;
    const MainControls &controls_;
    CommandRouter &router_;
    BoardNews &news_;
    Rooms rooms_;
    TileStore &store_;
};
