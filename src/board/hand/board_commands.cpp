// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "board/hand/board_commands.h"

#include "board/canvas/arrangement.h"
#include "board/canvas/bulk_tiles.h"
#include "board/canvas/canvas.h"
#include "board/canvas/placement.h"
#include "board/hand/morpheme_lists.h"
#include "board/tiles/board_news.h"
#include "platform/boxes.h"
#include "platform/clock.h"
#include "platform/ground.h"
#include "platform/note_texts.h"
#include "platform/notes.h"
#include "platform/options.h"
#include "platform/procedure.h"
#include "platform/text.h"
#include "widgets/main_controls.h"
#include "widgets/picture_box.h"

#include <QLineEdit>

#include <array>

using command::From;
using namespace Qt::StringLiterals;

namespace {

constexpr auto form = "frmMain";
constexpr int insertOffset = 20; ///< pixels right of and below the press
constexpr int removeCommand = 105;
constexpr std::array insertCommands{204, 103, 303}; ///< by the index of the kind

QString text(const char16_t *words) { return QString::fromUtf16(words); }

} // namespace

BoardCommands::BoardCommands(Ground &ground, const MainControls &controls, CommandRouter &router,
                             BoardNews &news, const Rooms &rooms)
    : ground_(ground)
    , controls_(controls)
    , router_(router)
    , news_(news)
    , rooms_(rooms)
    , store_(rooms.canvas.store())
{
    registerTileCommands();
    registerKindCommands();
    registerBoardCommands();
}

// The tile under the pointer
// ---------------------------------------------------------------------------------------

void BoardCommands::registerTileCommands()
{
    using Act = Ending (BoardCommands::*)(const Press &);
    constexpr std::pair<int, Act> acts[] = {{104, &BoardCommands::editTile},
                                            {105, &BoardCommands::removeTile},
                                            {106, &BoardCommands::toggleCapitals}};
    for (const auto &[id, act] : acts)
        router_.on(From::TileMenu, {id}, [this, act](const Command &, const Press &press) {
            return lies(press) ? (this->*act)(press) : Ending::None;
        });
    router_.on(From::TileMenu, {116, 117, 118, 119, 120, 121, 122, 123},
               [this](const Command &command, const Press &press) {
                   return lies(press) ? copyTile(command, press) : Ending::None;
               });
}

bool BoardCommands::lies(const Press &press)
{
    if (press.kind == nullptr)
        ground_.notes.tell(note::noTileThere);
    return press.kind != nullptr;
}

Ending BoardCommands::editTile(const Press &press)
{
    const command::KindWords &words = command::words(press.kind->filterIndex);
    const QPoint corner = controls_.picCanvas->mapToGlobal(rooms_.canvas.view().toCanvas(press.point));
    const QString typed = ground_.boxes.ShowIBox(text(words.prompt), press.kind->box, press.text,
                                                 text(words.editTitle), corner.x(), corner.y());
    if (typed.isEmpty())
        return Ending::RecallOnly;
    rooms_.canvas.EditObject(press.place, typed, press.kind->back);
    return Ending::Whole;
}

Ending BoardCommands::removeTile(const Press &press)
{
    if (!ground_.boxes.agrees(text(command::words(press.kind->filterIndex).removeQuestion), u"Entfernen"_s,
                              press.kind->box, ground_.options.isOn(Setting::ConfirmBeforeErase)))
        return Ending::RecallOnly;
    store_.counters().add(press.kind->filterIndex, -1, true);
    rooms_.canvas.CanvasEraseWortel(press.place, press.text, press.kind->back);
    return Ending::Whole;
}

Ending BoardCommands::toggleCapitals(const Press &press)
{
    rooms_.canvas.EditObject(press.place, ToggleInitChar(press.text), press.kind->back);
    return Ending::Whole;
}

Ending BoardCommands::copyTile(const Command &command, const Press &press)
{
    const std::optional<int> copies = number(command, *press.kind);
    if (!copies)
        return Ending::None;
    store_.DuplicateObject2(press.kind->back, press.text, *copies, press.point.x(), press.point.y());
    store_.counters().updateTotal();
    return Ending::Whole;
}

void BoardCommands::duplicateAt(const Press &press)
{
    Procedure step{ground_.log, "picCanvas_MouseDown", form, Procedure::Silent};
    if (lies(press)) {
        step([&] { store_.DuplicateObject(press.kind->back, press.text, press.point.x(), press.point.y()); });
        step([&] { store_.counters().updateTotal(); });
    }
    step([&] { news_.Commit(); });
}

void BoardCommands::removeAt(const Press &press)
{
    if (lies(press))
        router_.run(From::TileMenu, removeCommand, press);
}

// One tile more
// -----------------------------------------------------------------------------------------------------

Ending BoardCommands::insert(const Command &command, const Press &press)
{
    const TileKind &kind = kindAt(command.argument);
    if (!store_.filter().shows(kind.back)) {
        ground_.notes.tell(note::kindHidden, text(kind.plural));
        return Ending::None;
    }
    const command::KindWords &words = command::words(command.argument);
    const QPoint corner = controls_.picCanvas->mapToGlobal(rooms_.canvas.view().toCanvas(press.point));
    const QString typed = ground_.boxes.ShowIBox(text(words.prompt), kind.box, {}, text(words.insertTitle),
                                                 corner.x(), corner.y());
    if (typed.isEmpty())
        return Ending::RecallOnly;
    places::Place place{press.point.x() + insertOffset, press.point.y() + insertOffset};
    if (rooms_.canvas.view().isPlain()) // a smaller view has room beyond the window
        place = places::onBoard(place, store_.measures(), store_.extentOf(typed));
    store_.CanvasDrawWortel(place.x, place.y, typed, kind.back, kind.text);
    store_.counters().add(kind.filterIndex, 1);
    return Ending::Whole;
}

void BoardCommands::insertAt(const Press &press, int kindIndex)
{
    router_.run(From::Pointer, insertCommands.at(static_cast<std::size_t>(kindIndex)), press);
}

Ending BoardCommands::addWortelFree()
{
    if (!ground_.options.isOn(Setting::NoOverlapOnStart))
        rooms_.bulk.addOneWortel();
    else if (rooms_.placement.PlaceWortelFree(1) == 0)
        ground_.notes.tell(note::noRoom);
    return Ending::Whole;
}

// Many tiles
// --------------------------------------------------------------------------------------------------------

std::optional<int> BoardCommands::number(const Command &command, const TileKind &kind)
{
    if (command.argument != command::presetNumber)
        return command.argument;
    const std::optional<int> count = rooms_.bulk.countInText1(kind);
    if (count == 0)
        ground_.notes.tell(note::numberIsNought);
    const bool isNone = command.from == From::TileMenu && Val(controls_.Text1->text()) < 0;
    return count && isNone ? 0 : count;
}

void BoardCommands::registerKindCommands()
{
    const auto onKind = [this](From from, std::initializer_list<int> ids, auto act) {
        router_.on(from, ids, [act](const Command &command, const Press &) {
            act(kindAt(command.argument));
            return Ending::Whole;
        });
    };
    const auto shuffle = [this](const TileKind &kind) {
        constexpr std::array<void (BulkTiles::*)(), 3> shuffles{
            &BulkTiles::ShuffleAllWortel, &BulkTiles::ShuffleAllPrefix, &BulkTiles::ShuffleAllSuffix};
        (rooms_.bulk.*shuffles.at(static_cast<std::size_t>(kind.filterIndex)))();
    };
    for (const From from : {From::MainMenu, From::Pointer})
        router_.on(from, {103, 204, 303},
                   [this](const Command &command, const Press &press) { return insert(command, press); });
    onKind(From::MainMenu, {104, 234, 304},
           [this](const TileKind &kind) { rooms_.canvas.CanvasEraseAllAffix(kind.back); });
    onKind(From::MainMenu, {105, 235}, [this](const TileKind &kind) { rooms_.bulk.InitCapAffix(kind.back); });
    onKind(From::MainMenu, {108, 236, 308}, shuffle);
    onKind(From::Key, {6}, shuffle);
    onKind(From::MainMenu, {101, 202, 301}, [this](const TileKind &kind) {
        rooms_.morphemeLists.OptType_MouseDown(kind.filterIndex, Qt::RightButton);
    });
}

void BoardCommands::registerBoardCommands()
{
    const auto on = [this](From from, std::initializer_list<int> ids, auto act) {
        router_.on(from, ids, [act](const Command &command, const Press &) {
            act(command);
            return Ending::Whole;
        });
    };
    const auto onNumber = [this](std::initializer_list<int> ids, void (BulkTiles::*act)(int)) {
        router_.on(From::MainMenu, ids, [this, act](const Command &command, const Press &) {
            const std::optional<int> count = number(command, wortelKind);
            if (count)
                (rooms_.bulk.*act)(*count);
            return count ? Ending::Whole : Ending::None;
        });
    };
    onNumber({206, 207, 208, 209, 210, 211, 212, 213}, &BulkTiles::RefillWithSpecNum);
    onNumber({217, 218, 219, 220, 221, 222, 223}, &BulkTiles::AddRandomWortel);
    on(From::MainMenu, {216}, [this](const Command &) { rooms_.bulk.addOneWortel(); });
    router_.on(From::Key, {1}, [this](const Command &, const Press &) { return addWortelFree(); });

    const auto replace = [this](const Command &) { rooms_.bulk.ReplaceAllWortel(); };
    on(From::MainMenu, {240}, replace);
    on(From::Key, {5}, replace);
    const auto spread = [this](const Command &) { rooms_.arrangement.SpreadMorpheme(wortelKind.back); };
    on(From::MainMenu, {241}, spread);
    on(From::Key, {4}, spread);
    const auto lineUp = [this](const Command &command) {
        rooms_.arrangement.LineUpWorteles(command.argument > 0, command.argument == 2);
    };
    on(From::MainMenu, {260, 261, 264}, lineUp);
    on(From::Key, {2}, lineUp);
    on(From::MainMenu, {1503}, [this](const Command &) { rooms_.bulk.RefillWithSpecNum(0); });
    on(From::MainMenu, {1504}, [this](const Command &) { rooms_.bulk.ShuffleAllMorpheme(); });
    on(From::MainMenu, {1505, 1522},
       [this](const Command &command) { rooms_.arrangement.SpreadAllMorpheme(command.argument == 1); });

    on(From::MainMenu, {102, 203, 302, 1502}, [this](const Command &command) {
        store_.filter().select(command.argument);
        rooms_.morphemeLists.tellIfNone(command.argument);
    });
    on(From::MainMenu, {1501}, [this](const Command &) { rooms_.morphemeLists.ToggleAllMorphemeLists(); });
}
