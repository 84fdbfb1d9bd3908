// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/board_commands.h"

#include "board/arrangement.h"
#include "board/bulk_tiles.h"
#include "board/canvas.h"
#include "board/menu_model.h"
#include "board/morpheme_lists.h"
#include "board/placement.h"
#include "platform/boxes.h"
#include "platform/clock.h"
#include "platform/ground.h"
#include "platform/modes.h"
#include "platform/options.h"
#include "platform/procedure.h"
#include "platform/rnd.h"
#include "platform/sound.h"
#include "platform/text.h"
#include "platform/word_lists.h"
#include "widgets/alpha_panel.h"
#include "widgets/main_controls.h"
#include "widgets/picture_box.h"

#include <QLineEdit>

#include <array>

using command::Asks;
using command::Command;
using command::Does;
using command::From;
using command::Needs;
using namespace Qt::StringLiterals;

namespace {

constexpr auto form = "frmMain";
constexpr auto mouseDown = "picCanvas_MouseDown";
constexpr int okAndCancel = 3;
constexpr int refused = 1;
constexpr int insertOffset = 20; ///< pixels right of and below the press
constexpr int insertSound = 123;
const QString notice = u"INFO"_s;
const QString program = u"Wortel-Meister"_s;

const TileKind &kindAt(int index) { return tileKinds.at(static_cast<std::size_t>(index)); }

QString text(const char16_t *words) { return QString::fromUtf16(words); }

} // namespace

BoardCommands::BoardCommands(Ground &ground, const MainControls &controls, const WordLists &lists,
                             Modes &modes, const Rooms &rooms)
    : ground_(ground)
    , controls_(controls)
    , lists_(lists)
    , modes_(modes)
    , rooms_(rooms)
    , store_(rooms.canvas.store())
{}

Press BoardCommands::pressAt(const QPoint &point)
{
    Press press{point, store_.filter().selected(), nullptr, {}, u"0,0"_s};
    press.kind = kindOfColour(store_.TypeOfSelectedWortel(point.x(), point.y()));
    // Text and place are those of the tile that the filter shows: another kind may lie under it in the store.
    if (const cWortel *tile = press.kind != nullptr ? store_.current() : nullptr) {
        press.text = tile->txt;
        press.place = u"%1,%2"_s.arg(tile->xLeft()).arg(tile->yTop());
    }
    return press;
}

// Dispatch
// ---------------------------------------------------------------------------------------------------------

void BoardCommands::run(From from, int id, const Press &press, int itemIndex)
{
    if (const Command *found = command::find(from, id))
        carryOut(*found, press, from == From::Key ? "Form_KeyPress" : mouseDown, itemIndex);
}

bool BoardCommands::runKey(int code)
{
    const Command *found = command::find(From::Key, code);
    if (found == nullptr)
        return false;
    Press press;
    press.filter = store_.filter().selected();
    carryOut(*found, press, "Form_KeyPress", 0);
    return true;
}

void BoardCommands::carryOut(const Command &command, const Press &press, const char *procedure, int itemIndex)
{
    if (!isAllowed(command))
        return;
    Procedure step{ground_.log, procedure, form, Procedure::Silent};
    if (itemIndex > 0)
        step.setErrorSuffix(u". Index: %1"_s.arg(itemIndex));

    step([&] { log(command, procedure); });
    bool goesOn = false;
    step([&] { goesOn = hasWhatItNeeds(command) && isAgreed(command); });
    if (!goesOn)
        return;

    const bool soundFirst = (command.flags & command::SoundFirst) != 0;
    if (soundFirst)
        step([&] { play(command.sound); });
    Ending ending = Ending::Whole; // a step that fails is no reason to leave out the rest
    step([&] { ending = (this->*action(command.does))(command, press); });
    if (ending == Ending::None)
        return;
    const bool whole = ending == Ending::Whole;
    if (whole && (command.flags & command::Commits) != 0)
        step([&] { Commit(); });
    if (whole && (command.flags & command::BacksUp) != 0)
        step([&] { backUp(); });
    if ((command.flags & command::Recalls) != 0)
        step([&] { Recall(press.filter); });
    if (whole && !soundFirst)
        step([&] { play(command.sound); });
    if ((command.flags & command::SelectsAll) != 0)
        step([&] { store_.filter().select(TileFilter::all); });
    if ((command.flags & command::RebuildsMenus) != 0)
        step([&] { rooms_.menus.CreateMenus(); });
}

bool BoardCommands::isAllowed(const Command &command)
{
    if ((command.flags & command::NotInGame) != 0 && modes_.GameActive)
        return false;
    if ((command.flags & command::StepBack) != 0 && !modes_.CanUndo)
        return false;
    return (command.flags & command::StepForward) == 0 || modes_.CanRedo;
}

bool BoardCommands::hasWhatItNeeds(const Command &command)
{
    const TileCounters &counters = store_.counters();
    bool has = true;
    if (command.needs == Needs::AnyTile)
        has = counters.value(0) > 0 || counters.value(1) > 0 || counters.value(2) > 0;
    else if (command.needs != Needs::Nothing)
        has = counters.value(static_cast<int>(command.needs)) > 0;
    if (!has)
        ground_.boxes.ShowInfoBox(text(command.missing), notice, program);
    return has;
}

bool BoardCommands::isAgreed(const Command &command)
{
    if (command.asks == Asks::Nothing)
        return true;
    const bool removal = command.asks == Asks::Removal;
    const bool show = command.asks == Asks::Always || ground_.options.isOn(Setting::ConfirmBeforeErase);
    const QString style = removal ? text(kindAt(command.argument).styleWord) : u"CONFIRM"_s;
    return ground_.boxes.ShowMBox(text(command.question), show, okAndCancel,
                                  removal ? u"Entfernen"_s : u"Bestätigen"_s, style) != refused;
}

void BoardCommands::log(const Command &command, const char *procedure)
{
    if (command.logWord == nullptr)
        return;
    ground_.log.WriteLog(u"Event: In procedure "_s + QLatin1String(procedure) + u" of Form frmMain "_s +
                         (command.from == From::MainMenu ? u"Main-menu: "_s : QString()) +
                         text(command.logWord));
}

void BoardCommands::play(int sound)
{
    if (sound != 0 && ground_.options.isOn(Setting::SoundOnActions))
        ground_.sound.PlayResourceSound(sound);
}

void BoardCommands::Commit() { emit committed(); }

void BoardCommands::Recall(int filter) { rooms_.canvas.RecallFilter(filter); }

void BoardCommands::backUp()
{
    if (ground_.options.storedIsOn(Setting::UseBackup))
        emit backupWanted();
}

BoardCommands::Action BoardCommands::action(Does does)
{
    static constexpr std::array<Action, static_cast<std::size_t>(Does::Count)> actions{
        &BoardCommands::otherRoom,   &BoardCommands::showTip,          &BoardCommands::editTile,
        &BoardCommands::removeTile,  &BoardCommands::toggleCapitals,   &BoardCommands::copyTile,
        &BoardCommands::showList,    &BoardCommands::selectFilter,     &BoardCommands::insert,
        &BoardCommands::refill,      &BoardCommands::addOneWortel,     &BoardCommands::addWortelFree,
        &BoardCommands::addRandom,   &BoardCommands::eraseKind,        &BoardCommands::capitalsOfKind,
        &BoardCommands::shuffleKind, &BoardCommands::replaceAllWortel, &BoardCommands::spreadWortel,
        &BoardCommands::lineUp,      &BoardCommands::toggleLists,      &BoardCommands::eraseAll,
        &BoardCommands::shuffleAll,  &BoardCommands::spreadAll,
    };
    return actions.at(static_cast<std::size_t>(does));
}

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
    const bool agreed = ground_.boxes.ShowMBox(text(command::words(press.kind->filterIndex).removeQuestion),
                                               ground_.options.isOn(Setting::ConfirmBeforeErase), okAndCancel,
                                               u"Entfernen"_s, text(press.kind->styleWord)) != refused;
    if (!agreed)
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
        run(From::TileMenu, 105, press);
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
    const int x = rnd.absInt(window.ScaleWidth(), -100);
    const int y = rnd.absInt(window.ScaleHeight(), -300) + 80;
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
    try {
        const double value = CDbl(controls_.Text1->text());
        if (command.does == Does::CopyTile && value < 0)
            return 0;
    } catch (const RuntimeError &) {
        ground_.boxes.ShowInfoBox(u"Bitte schreibe eine Zahl in das Feld \"Anzahl Wortel\""_s, notice,
                                  program);
        return std::nullopt;
    }
    return rooms_.bulk.countInText1();
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
