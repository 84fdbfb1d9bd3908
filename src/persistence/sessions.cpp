// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/sessions.h"

#include "board/canvas/canvas.h"
#include "board/hand/command_router.h"
#include "board/tiles/board_news.h"
#include "language/list_loader.h"
#include "persistence/file_type.h"
#include "persistence/session_dialog.h"
#include "persistence/session_file.h"
#include "platform/boxes.h"
#include "platform/clock.h"
#include "platform/fault_words.h"
#include "platform/files.h"
#include "platform/ground.h"
#include "platform/ini_file.h"
#include "platform/note_texts.h"
#include "platform/notes.h"
#include "platform/options.h"
#include "platform/procedure.h"
#include "platform/product.h"
#include "platform/system_info.h"
#include "platform/word_lists.h"
#include "widgets/guards.h"
#include "widgets/main_controls.h"
#include "widgets/plain_tool_tip.h"

#include <QLabel>

#include <source_location>

using namespace Qt::StringLiterals;

namespace {

constexpr auto form = "frmMain";
const QString invalidData = u"Die Datei enthält ungültige Daten."_s;
const QString filter = u"Wortel-Sitzungen(*.wlx)|*.wlx"_s;

QString lineHere(std::source_location where = std::source_location::current())
{
    return QString::number(where.line());
}

} // namespace

Sessions::Sessions(Ground &ground, const MainControls &controls, WordLists &lists, const Rooms &rooms,
                   QObject *parent)
    : QObject(parent)
    , ground_(ground)
    , controls_(controls)
    , lists_(lists)
    , rooms_(rooms)
{}

void Sessions::registerCommands(CommandRouter &router)
{
    using command::From;
    const auto on = [&router](int menu, int key, const std::function<void()> &act) {
        const auto handler = [act](const command::Command &, const Press &) {
            act();
            return Ending::Whole;
        };
        router.on(From::MainMenu, {menu}, handler);
        router.on(From::Key, {key}, handler);
    };
    on(1901, 15, [this] { RestoreObjects(); });
    on(1903, 19, [this] { SaveObjects(); });
}

void Sessions::makeCurrent(const QString &path)
{
    CurrentSessionFile_ = path;
    WebExportName_ = session_file::webExportName(path);
}

// Saving
// ------------------------------------------------------------------------------------------------------

void Sessions::SaveObjects(const QString &path)
{
    Procedure step{ground_.log, "SaveObjects", form};
    QString target = path;
    if (target.isEmpty()) {
        const SessionDialog ask{u"Wortel - Sitzung speichern"_s, filter, u"SaveWLX"_s};
        step([&] { target = chooseToSave(ground_, ask, CurrentSessionFile_); });
        if (target.isEmpty())
            return;
        step([&] { rememberFolder(ground_, ask, target); });
    }
    const Hourglass hourglass;
    if (step([&] { writeSession(target); }))
        step([&] { tellSaved(target); });
    step([&] { ground_.pump.yield(); });
}

void Sessions::writeSession(const QString &path)
{
    try {
        IniFile file(path, IniFile::Purpose::Writing);
        session_file::write(file, rooms_.canvas.store().tiles(), listBaseName(lists_.CurrentWortelFile));
        file.save();
    } catch (const RuntimeError &error) {
        ground_.boxes.plainBox(
            Boxes::Icon::Critical, product::faultTitle,
            u".WLX-Datei könnte nicht gespeichert werden.\n\n FrmTransform::SaveObjects (Line: "_s +
                lineHere() + u") \n"_s + faultWords(error));
        throw;
    }
    makeCurrent(path);
}

void Sessions::tellSaved(const QString &path)
{
    QString texts;
    for (const auto &tile : rooms_.canvas.store().tiles())
        texts += tile->txt;
    ground_.notes.tellSaved(nameWithoutEnding(path), texts);
}

// Opening
// ------------------------------------------------------------------------------------------------------

void Sessions::RestoreObjects(const QString &path)
{
    Procedure step{ground_.log, "RestoreObjects", form};
    QString source = path;
    const SessionDialog ask{u"Wortel - Sitzung laden"_s, filter, u"RestoreWXL"_s};
    if (source.isEmpty())
        step([&] { source = chooseToOpen(ground_, ask); });
    if (source.isEmpty())
        return;
    if (path.isEmpty())
        step([&] { rememberFolder(ground_, ask, source); });
    const Hourglass hourglass;
    const std::optional<IniFile> file = read(source);
    if (!file)
        return;
    step([&] { emit boardOpens(); });
    bool whole = false;
    step([&] { whole = readSession(*file); });
    step([&] { rooms_.canvas.RecallFilter(TileFilter::all); });
    step([&] { path.isEmpty() ? rooms_.news.open() : rooms_.news.Commit(); });
    if (!whole) {
        refuse(source, invalidData);
        return;
    }
    step([&] { AddToRecentDocs(source, FileType::mimeType); });
    step([&] { makeCurrent(source); });
    step([&] { emit restored(); });
    ground_.notes.tell(note::loaded, nameWithoutEnding(source));
}

void Sessions::refuse(const QString &path, const QString &reason)
{
    ground_.boxes.plainBox(Boxes::Icon::Critical, product::faultTitle,
                           u"Die WXL-Sitzung konnte nicht eingelesen werden: "_s + path + u"\n\n"_s + reason +
                               u"\n\nDas Laden wird abgebrochen..."_s);
}

/// A missing file is an empty session. One that cannot be read is told, and leaves the board alone.
std::optional<IniFile> Sessions::read(const QString &path)
{
    Procedure step{ground_.log, "RestoreObjects", form, Procedure::Silent};
    std::optional<IniFile> file;
    QString reason = invalidData;
    step([&] {
        try {
            file.emplace(path);
        } catch (const RuntimeError &error) {
            if (error.number() == RuntimeError::OutOfMemory)
                reason = faultWords(error);
            throw;
        }
    });
    if (!file)
        refuse(path, reason);
    return file;
}

/// The tiles that were read before a fault stay; then the session's stem list is left alone. True if there
/// was none.
bool Sessions::readSession(const IniFile &file)
{
    Procedure step{ground_.log, "RestoreObjects", form, Procedure::Silent};
    TileStore &store = rooms_.canvas.store();
    TileList tiles;
    QString lexicon;
    const bool whole = step([&] {
        session_file::readTiles(file, [&](const session_file::Tile &tile) {
            tiles.push_back(store.makeTile(tile.left, tile.top, tile.caption, tile.back, tile.text));
        });
        lexicon = session_file::lexiconInUse(file);
    });
    store.replaceAll(std::move(tiles));
    store.recount();
    rooms_.canvas.repaint();
    if (whole && ground_.options.isOn(Setting::OpenWLXWithStoredLex))
        loadLists(lexicon);
    return whole;
}

void Sessions::loadLists(const QString &name)
{
    if (name.isEmpty())
        return;
    QString path = ground_.AppFolder + u"text\\"_s + name + u".txt"_s;
    const bool leadsElsewhere = name.contains(u'\\') || name.contains(u'/');
    if (leadsElsewhere || !IsTextFile(path)) {
        ground_.boxes.plainBox(Boxes::Icon::Warning, u"Cannot open lexicon for this session"_s,
                               u"Datei "_s + path + u" fehlt\n\nSub: RestoreObjects. Line: "_s + lineHere());
        return;
    }
    try {
        readListOrTell(ground_, path);
    } catch (const RuntimeError &) {
        return; // the lists that are there stay
    }
    lists_.LexiconList.clear();
    lists_.WortelList.clear();
    emit listsChosen();
    rooms_.loader.FillWortelList(path);
    // The label names the dictionary, as at the start; its tool tip the list.
    controls_.Label3->setText(name);
    controls_.Label3->setToolTip(plainToolTip(name));
    ground_.pump.yield();
}
