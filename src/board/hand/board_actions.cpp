// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
// What each command of the board does; who calls them and how they end stands in board_commands.cpp.
#include "board/canvas/arrangement.h"
#include "board/canvas/bulk_tiles.h"
#include "board/canvas/canvas.h"
#include "board/canvas/placement.h"
#include "board/hand/board_commands.h"
#include "board/hand/morpheme_lists.h"
#include "platform/boxes.h"
#include "platform/clock.h"
#include "platform/ground.h"
#include "platform/options.h"
#include "platform/procedure.h"
#include "platform/rnd.h"
#include "platform/text.h"
#include "platform/word_lists.h"
#include "widgets/alpha_panel.h"
#include "widgets/main_controls.h"
#include "widgets/picture_box.h"

#include <QLineEdit>

#include <array>

using command::Command;
using command::Does;
using command::From;
using namespace Qt::StringLiterals;

namespace {

constexpr auto form = "frmMain";
constexpr auto mouseDown = "picCanvas_MouseDown";
constexpr int insertOffset = 20; ///< pixels right of and below the press
constexpr int insertSound = 123;
constexpr int removeCommand = 105;

const TileKind &kindAt(int index) { return tileKinds.at(static_cast<std::size_t>(index)); }

QString text(const char16_t *words) { return QString::fromUtf16(words); }

} // namespace

// Other rooms
// ------------------------------------------------------------------------------------------------------

BoardCommands::Ending BoardCommands::otherRoom(const Command &command, const Press &)
{
    emit commandChosen(command.argument != 0 ? command.argument : command.id);
    return Ending::Whole;
}

BoardCommands::Ending BoardCommands::showTip(const Command &command, const Press &)
{
    if (controls_.PicAlpha->isHidden())
        emit commandChosen(command.argument);
    return Ending::Whole;
}

// The tile under the pointer
// ---------------------------------------------------------------------------------------

BoardCommands::Ending BoardCommands::editTile(const Command &, const Press &press)
{
    if (press.kind == nullptr)
        return Ending::None;
    const command::KindWords &words = command::words(press.kind->filterIndex);
    const QPoint corner = controls_.picCanvas->mapToGlobal(press.point);
    const QString typed = ground_.boxes.ShowIBox(text(words.prompt), press.kind->boxCode, press.text,
                                                 text(words.editTitle), corner.x(), corner.y());
    if (typed.isEmpty())
        return Ending::RecallOnly;
    rooms_.canvas.EditObject(press.place, typed, press.kind->back);
    return Ending::Whole;
}

BoardCommands::Ending BoardCommands::removeTile(const Command &, const Press &press)
{
    if (press.kind == nullptr)
        return Ending::None;
    if (!ask(command::words(press.kind->filterIndex).removeQuestion,
             ground_.options.isOn(Setting::ConfirmBeforeErase), u"Entfernen"_s, text(press.kind->styleWord)))
        return Ending::RecallOnly;
    rooms_.canvas.CanvasEraseWortel(press.point.x(), press.point.y(), press.kind->back);
    store_.counters().add(press.kind->filterIndex, -1, true);
    return Ending::Whole;
}

BoardCommands::Ending BoardCommands::toggleCapitals(const Command &, const Press &press)
{
    if (press.kind == nullptr)
        return Ending::None;
    rooms_.canvas.EditObject(press.place, ToggleInitChar(press.text), press.kind->back);
    return Ending::Whole;
}

BoardCommands::Ending BoardCommands::copyTile(const Command &command, const Press &press)
{
    if (press.kind == nullptr)
        return Ending::None;
    const std::optional<int> copies = number(command);
    if (!copies)
        return Ending::None;
    store_.DuplicateObject2(press.kind->back, press.text, *copies, press.point.x(), press.point.y());
    return Ending::Whole;
}

void BoardCommands::duplicateAt(const Press &press)
{
    Procedure step{ground_.log, mouseDown, form, Procedure::Silent};
    if (press.kind != nullptr)
        step([&] { store_.DuplicateObject(press.kind->back, press.text, press.point.x(), press.point.y()); });
    step([&] { Commit(); });
}

void BoardCommands::removeAt(const Press &press)
{
    if (press.kind != nullptr)
        run(From::TileMenu, removeCommand, press);
}

// One tile more
// -----------------------------------------------------------------------------------------------------

BoardCommands::Ending BoardCommands::insert(const Command &command, const Press &press)
{
    const TileKind &kind = kindAt(command.argument);
    const command::KindWords &words = command::words(command.argument);
    const QPoint corner = controls_.picCanvas->mapToGlobal(press.point);
    const QString typed = ground_.boxes.ShowIBox(text(words.prompt), kind.boxCode, {},
                                                 text(words.insertTitle), corner.x(), corner.y());
    if (typed.isEmpty())
        return Ending::RecallOnly;
    store_.CanvasDrawWortel(press.point.x() + insertOffset, press.point.y() + insertOffset, typed, kind.back,
                            kind.text);
    store_.counters().add(kind.filterIndex, 1);
    return Ending::Whole;
}

void BoardCommands::insertAt(const Press &press, int kindIndex)
{
    const Command row{From::MainMenu,
                      0,
                      Does::Insert,
                      static_cast<std::int16_t>(kindIndex),
                      command::Commits | command::Recalls,
                      insertSound,
                      nullptr};
    carryOut(row, press, mouseDown, 0);
    ground_.pump.yield();
}

BoardCommands::Ending BoardCommands::addOneWortel(const Command &, const Press &)
{
    const BoardMeasures &window = store_.measures();
    Rnd &rnd = ground_.rnd;
    const QString stem = lists_.WortelList.at(rnd.absInt(lists_.WortelList.count()));
    const auto [x, y] = places::addedWortel(rnd, window.ScaleWidth(), window.ScaleHeight());
    store_.CanvasDrawWortel(x, y, stem, colours::wortelBack, colours::wortelText);
    store_.counters().add(0, 1);
    return Ending::Whole;
}

BoardCommands::Ending BoardCommands::addWortelFree(const Command &command, const Press &press)
{
    if (!ground_.options.isOn(Setting::NoOverlapOnStart))
        return addOneWortel(command, press);
    rooms_.placement.PlaceWortelFree(1);
    return Ending::Whole;
}

// Many tiles
// --------------------------------------------------------------------------------------------------------

std::optional<int> BoardCommands::number(const Command &command)
{
    if (command.argument != command::presetNumber)
        return command.argument;
    const std::optional<int> count = rooms_.bulk.countInText1();
    const bool isNone = command.does == Does::CopyTile && Val(controls_.Text1->text()) < 0;
    return count && isNone ? 0 : count;
}

BoardCommands::Ending BoardCommands::refill(const Command &command, const Press &)
{
    const std::optional<int> count = number(command);
    if (!count)
        return Ending::None;
    rooms_.bulk.RefillWithSpecNum(*count);
    return Ending::Whole;
}

BoardCommands::Ending BoardCommands::addRandom(const Command &command, const Press &)
{
    const std::optional<int> count = number(command);
    if (!count)
        return Ending::None;
    rooms_.bulk.AddRandomWortel(*count);
    return Ending::Whole;
}

BoardCommands::Ending BoardCommands::eraseKind(const Command &command, const Press &)
{
    rooms_.canvas.CanvasEraseAllAffix(kindAt(command.argument).back);
    return Ending::Whole;
}

BoardCommands::Ending BoardCommands::capitalsOfKind(const Command &command, const Press &)
{
    rooms_.bulk.InitCapAffix(kindAt(command.argument).back);
    return Ending::Whole;
}

BoardCommands::Ending BoardCommands::shuffleKind(const Command &command, const Press &)
{
    constexpr std::array<void (BulkTiles::*)(), 3> shuffles{
        &BulkTiles::ShuffleAllWortel, &BulkTiles::ShuffleAllPrefix, &BulkTiles::ShuffleAllSuffix};
    (rooms_.bulk.*shuffles.at(static_cast<std::size_t>(command.argument)))();
    return Ending::Whole;
}

BoardCommands::Ending BoardCommands::replaceAllWortel(const Command &, const Press &)
{
    rooms_.bulk.ReplaceAllWortel();
    return Ending::Whole;
}

BoardCommands::Ending BoardCommands::spreadWortel(const Command &, const Press &)
{
    rooms_.arrangement.SpreadMorpheme(colours::wortelBack);
    return Ending::Whole;
}

BoardCommands::Ending BoardCommands::lineUp(const Command &command, const Press &)
{
    rooms_.arrangement.LineUpWorteles(command.argument > 0, command.argument == 2);
    return Ending::Whole;
}

BoardCommands::Ending BoardCommands::eraseAll(const Command &, const Press &)
{
    rooms_.bulk.RefillWithSpecNum(0);
    return Ending::Whole;
}

BoardCommands::Ending BoardCommands::shuffleAll(const Command &, const Press &)
{
    rooms_.bulk.ShuffleAllMorpheme();
    return Ending::Whole;
}

BoardCommands::Ending BoardCommands::spreadAll(const Command &command, const Press &)
{
    rooms_.arrangement.SpreadAllMorpheme(command.argument == 1);
    return Ending::Whole;
}

// Views
// -------------------------------------------------------------------------------------------------------------

BoardCommands::Ending BoardCommands::showList(const Command &command, const Press &)
{
    rooms_.morphemeLists.OptType_MouseDown(command.argument, Qt::RightButton);
    return Ending::Whole;
}

BoardCommands::Ending BoardCommands::selectFilter(const Command &command, const Press &)
{
    store_.filter().select(command.argument);
    return Ending::Whole;
}

BoardCommands::Ending BoardCommands::toggleLists(const Command &, const Press &)
{
    rooms_.morphemeLists.ToggleAllMorphemeLists();
    return Ending::Whole;
}
