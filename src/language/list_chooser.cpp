// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/list_chooser.h"

#include "board/hand/command_router.h"
#include "board/tiles/board_news.h"
#include "board/tiles/tile_store.h"
#include "language/list_loader.h"
#include "platform/clock.h"
#include "platform/file_dialogs.h"
#include "platform/files.h"
#include "platform/gate.h"
#include "platform/ground.h"
#include "platform/note_texts.h"
#include "platform/notes.h"
#include "platform/procedure.h"
#include "platform/text.h"
#include "platform/word_lists.h"
#include "platform/work.h"
#include "widgets/alpha_panel.h"
#include "widgets/guards.h"
#include "widgets/main_controls.h"
#include "widgets/plain_tool_tip.h"
#include "widgets/press_button.h"
#include "widgets/store_list.h"

#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

constexpr int heightOverList = 40; ///< pixels between a list's upper edge and the tile laid from it

QString inBrackets(qsizetype count) { return u'[' + QString::number(count) + u']'; }

} // namespace

ListChooser::ListChooser(Ground &ground, const MainControls &controls, WordLists &lists, ListLoader &loader,
                         TileStore &tiles, BoardNews &news, BoardCalls board, QObject *parent)
    : QObject(parent)
    , ground_(ground)
    , controls_(controls)
    , lists_(lists)
    , loader_(loader)
    , tiles_(tiles)
    , news_(news)
    , board_(std::move(board))
{}

void ListChooser::registerCommands(CommandRouter &router)
{
    router.onMenu(201, [this] { chooseStemLists(); });
    router.onMenu(402, [this] { chooseDictionaries(); });
}

void ListChooser::chooseStemLists()
{
    Procedure step{ground_.log, "Check2_MouseDown", "frmMain"};
    QStringList paths;
    step([&] { paths = loader_.askForStemLists(); });
    if (paths.isEmpty())
        return;
    const Work work(ground_);
    emit listsChosen();
    controls_.PicAlpha->hide();
    controls_.Label3->setText(inBrackets(paths.size()));
    step([&] { lists_.CorrectWordList.clear(); });
    step([&] { lists_.WortelList.clear(); });
    controls_.WortelList->hide();
    step([&] { lists_.LexiconList.clear(); });
    // Several names are joined without a folder, so that nothing stands behind a last backslash: the tool tip
    // stays empty.
    const QString shownName = paths.size() == 1 ? listBaseName(paths.first()) : QString();
    for (QString path : paths)
        step([&] { loader_.FillWortelList(path); });
    tellLoaded(paths);
    controls_.Label3->setToolTip(plainToolTip(shownName));
    bool dealt = false;
    step([&] { dealt = board_.Refill(); });
    if (dealt)
        step([&] { news_.Commit(); });
}

void ListChooser::chooseDictionaries()
{
    Procedure step{ground_.log, "Command3_MouseDown", "frmMain"};
    QStringList paths;
    step([&] {
        paths = ground_.fileDialogs.openFiles(u"Wörterbuch laden (multi)"_s, ground_.AppFolder + u"facit"_s,
                                              u"Wörterbücher (*.lex)|*.lex"_s, true);
    });
    if (paths.isEmpty())
        return;
    const Hourglass hourglass;
    controls_.Label3->setText(inBrackets(paths.size()));
    step([&] { lists_.CorrectWordList.clear(); });
    step([&] { lists_.LexiconList.clear(); });
    for (const QString &path : paths)
        step([&] { loader_.Fill_Lexicon(RTrimText(ListLoader::facitPath(path), u".txt"_s)); });
    tellLoaded(paths);
}

void ListChooser::tellLoaded(const QStringList &paths)
{
    QStringList names;
    for (const QString &path : paths)
        names << nameWithoutEnding(path);
    ground_.notes.tell(note::loaded, names.join(u", "_s));
}

void ListChooser::WortelList_Click(int row) { layTile(wortelKind, row); }
void ListChooser::PrefixList_Click(int row) { layTile(prefixKind, row); }
void ListChooser::SuffixList_Click(int row) { layTile(suffixKind, row); }

void ListChooser::layTile(const TileKind &kind, int row)
{
    const StoreList *const views[] = {controls_.WortelList, controls_.PrefixList, controls_.SuffixList};
    const WordStore *const stores[] = {&lists_.WortelList, &lists_.PrefixList, &lists_.SuffixList};
    const char *const names[] = {"WortelList_Click", "PrefixList_Click", "SuffixList_Click"};
    const auto index = static_cast<std::size_t>(kind.filterIndex);

    const Gate::Passage passage = ground_.gate.enter(Gate::Way::Play);
    if (!passage)
        return;
    Procedure step{ground_.log, names[index], "frmMain"};
    if (row < 0 || row >= stores[index]->count())
        return;
    const QPoint corner = views[index]->pos();
    step([&] {
        tiles_.CanvasDrawWortel(Int16(corner.x()), Int16(corner.y() - heightOverList), stores[index]->at(row),
                                kind.back, kind.text);
    });
    step([&] { tiles_.counters().add(kind.filterIndex, 1); });
    step([&] { board_.DoOnDrop(); });
    step([&] { news_.Commit(); });
}
