// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/hand/board_commands.h"

#include "board/canvas/canvas.h"
#include "board/hand/menu_model.h"
#include "platform/boxes.h"
#include "platform/ground.h"
#include "platform/modes.h"
#include "platform/options.h"
#include "platform/procedure.h"
#include "platform/sound.h"

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
        tell(text(command.missing));
    return has;
}

bool BoardCommands::isAgreed(const Command &command)
{
    if (command.asks == Asks::Nothing)
        return true;
    const bool removal = command.asks == Asks::Removal;
    const bool show = command.asks == Asks::Always || ground_.options.isOn(Setting::ConfirmBeforeErase);
    return ask(command.question, show, removal ? u"Entfernen"_s : u"Bestätigen"_s,
               removal ? text(kindAt(command.argument).styleWord) : u"CONFIRM"_s);
}

bool BoardCommands::ask(const char16_t *question, bool show, const QString &title, const QString &style)
{
    constexpr int okAndCancel = 3;
    constexpr int refused = 1;
    return ground_.boxes.ShowMBox(text(question), show, okAndCancel, title, style) != refused;
}

void BoardCommands::tell(const QString &notice)
{
    ground_.boxes.ShowInfoBox(notice, u"INFO"_s, u"Wortel-Meister"_s);
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
