// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "board/hand/commands.h"
#include "board/tiles/tile_kind.h"
#include "platform/box_kinds.h"

#include <QPoint>
#include <QString>

#include <functional>
#include <initializer_list>
#include <map>
#include <utility>

class BoardNews;
class Canvas;
class PlayState;
struct Ground;

/// What was pressed: the point on the board, the filter at that moment, and the tile that lay there.
struct Press
{
    QPoint point;                   ///< pixels of the board
    int filter = 3;                 ///< index of the selected filter
    const TileKind *kind = nullptr; ///< of the tile under the point that the filter shows, or nullptr
    QString text;
    QPoint place; ///< the tile's left upper corner
};

/// How much of a command's ending is due after what it did.
enum class Ending : std::uint8_t { Whole, RecallOnly, None };

/// The one dispatcher of commands. Each room registers what it does for its numbers; the router looks the
/// command up in the table, logs it, tells what is missing, asks what is to be asked, lets the room act, and
/// ends the command as its row says. Whoever calls it has passed the gate.
class CommandRouter
{
public:
    using Handler = std::function<Ending(const command::Command &, const Press &)>;

    CommandRouter(Ground &ground, const PlayState &play, Canvas &canvas, BoardNews &news);

    /// Registers a handler for these numbers. A number is registered once.
    void on(command::From from, std::initializer_list<int> ids, Handler handler);
    /// One that needs to know nothing, and always ends whole. A number that is no key of the table is for the
    /// main menu.
    void onMenu(int id, std::function<void()> handler);
    bool hasHandler(command::From from, int id) const { return handlers_.contains({from, id}); }

    /// Looks under the point: kind, text and place of the tile that the filter shows there.
    Press pressAt(const QPoint &point) const;
    int selectedFilter() const;
    /// Carries out the command of that number, as chosen at `press`. An unknown number does nothing.
    /// `itemIndex` is the menu item's index, which a line of the error log names.
    void run(command::From from, int id, const Press &press, int itemIndex = 0);

private:
    bool hasWhatItNeeds(const command::Command &command);
    bool isAgreed(const command::Command &command);
    void log(const command::Command &command, const char *procedure);

    Ground &ground_;
    const PlayState &play_;
    Canvas &canvas_;
    BoardNews &news_;
    std::map<std::pair<command::From, int>, Handler> handlers_;
};
