// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/hand/command_router.h"

#include "board/canvas/canvas.h"
#include "board/tiles/board_news.h"
#include "platform/boxes.h"
#include "platform/ground.h"
#include "platform/log.h"
#include "platform/note_texts.h"
#include "platform/notes.h"
#include "platform/options.h"
#include "platform/play_state.h"
#include "platform/procedure.h"
#include "platform/product.h"
#include "platform/sounds.h"

using command::Asks;
using command::Command;
using command::From;
using command::Needs;
using namespace Qt::StringLiterals;

namespace {

constexpr auto form = "frmMain";

QString text(const char16_t *words) { return QString::fromUtf16(words); }

} // namespace

CommandRouter::CommandRouter(Ground &ground, const PlayState &play, Canvas &canvas, BoardNews &news)
    : ground_(ground)
    , play_(play)
    , canvas_(canvas)
    , news_(news)
{}

void CommandRouter::on(From from, std::initializer_list<int> ids, Handler handler)
{
    for (const int id : ids) {
        Q_ASSERT_X(command::find(from, id) != nullptr, "CommandRouter",
                   "no row of the table has this number");
        Q_ASSERT_X(!hasHandler(from, id), "CommandRouter", "a number is registered once");
        handlers_[{from, id}] = handler;
    }
}

void CommandRouter::onMenu(int id, std::function<void()> handler)
{
    on(From::MainMenu, {id}, [handler = std::move(handler)](const Command &, const Press &) {
        handler();
        return Ending::Whole;
    });
}

Press CommandRouter::pressAt(const QPoint &point) const
{
    TileStore &store = canvas_.store();
    Press press{point, store.filter().selected(), nullptr, {}, {}};
    press.kind = kindOfColour(store.TypeOfSelectedWortel(point.x(), point.y()));
    // Text and place are those of the tile that the filter shows: another kind may lie under it in the store.
    if (const cWortel *tile = press.kind != nullptr ? store.current() : nullptr) {
        press.text = tile->txt;
        press.place = {tile->xLeft(), tile->yTop()};
    }
    store.setCurrent(nullptr); // it was looked at, not taken
    return press;
}

int CommandRouter::selectedFilter() const { return canvas_.store().filter().selected(); }

void CommandRouter::run(From from, int id, const Press &press, int itemIndex)
{
    const Command *found = command::find(from, id);
    if (found == nullptr)
        return;
    if ((found->flags & command::NotInGame) != 0 && play_.GameActive()) {
        ground_.notes.tell(note::afterGame);
        return;
    }
    const Command &command = *found;
    const auto handler = handlers_.find({from, id});
    const char *procedure = from == From::Key ? "Form_KeyPress" : "picCanvas_MouseDown";
    Procedure step{ground_.log, procedure, form, Procedure::Silent};
    if (itemIndex > 0)
        step.setErrorSuffix(u". Index: %1"_s.arg(itemIndex));

    step([&] { log(command, procedure); });
    bool goesOn = false;
    step([&] { goesOn = hasWhatItNeeds(command) && isAgreed(command); });
    if (!goesOn || handler == handlers_.end())
        return;

    const bool soundFirst = (command.flags & command::SoundFirst) != 0;
    if (soundFirst)
        step([&] { playSound(ground_, command.sound); });
    Ending ending = Ending::Whole; // a step that fails is no reason to leave out the rest
    step([&] { ending = handler->second(command, press); });
    if (ending == Ending::None || ground_.gate.isClosing())
        return;
    const bool whole = ending == Ending::Whole;
    if (whole && (command.flags & command::Commits) != 0)
        step([&] { news_.Commit(); });
    if ((command.flags & command::Recalls) != 0)
        step([&] { canvas_.RecallFilter(press.filter); });
    if (whole && !soundFirst)
        step([&] { playSound(ground_, command.sound); });
    if ((command.flags & command::SelectsAll) != 0)
        step([&] { canvas_.store().filter().select(TileFilter::all); });
}

bool CommandRouter::hasWhatItNeeds(const Command &command)
{
    const TileCounters &counters = canvas_.store().counters();
    bool has = true;
    if (command.needs == Needs::AnyTile)
        has = counters.value(0) > 0 || counters.value(1) > 0 || counters.value(2) > 0;
    else if (command.needs != Needs::Nothing)
        has = counters.value(static_cast<int>(command.needs)) > 0;
    if (!has)
        ground_.boxes.ShowInfoBox(text(command.missing), BoxSign::Info, product::name);
    return has;
}

bool CommandRouter::isAgreed(const Command &command)
{
    if (command.asks == Asks::Nothing)
        return true;
    const bool removal = command.asks == Asks::Removal;
    const bool show = command.asks == Asks::Always || ground_.options.isOn(Setting::ConfirmBeforeErase);
    return ground_.boxes.agrees(text(command.question), removal ? u"Entfernen"_s : u"Bestätigen"_s,
                                removal ? kindAt(command.argument).box : BoxStyle::Confirm, show);
}

void CommandRouter::log(const Command &command, const char *procedure)
{
    if (command.logWord == nullptr)
        return;
    ground_.log.WriteLog(u"Event: In procedure "_s + QLatin1String(procedure) + u" of Form frmMain "_s +
                         (command.from == From::MainMenu ? u"Main-menu: "_s : QString()) +
                         text(command.logWord));
}
