// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/backup.h"

#include "board/canvas/canvas.h"
#include "board/tiles/board_news.h"
#include "persistence/backup_file.h"
#include "persistence/session_dialog.h"
#include "platform/boxes.h"
#include "platform/files.h"
#include "platform/ground.h"
#include "platform/note_texts.h"
#include "platform/notes.h"
#include "platform/options.h"
#include "platform/procedure.h"
#include "platform/product.h"
#include "platform/windows1252.h"
#include "widgets/guards.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr auto form = "frmMain";

SessionDialog dialog(const QString &title, const QString &folderKey)
{
    return {title, u"Wortel-Sessions(*.wlx)|*.wlx"_s, folderKey};
}

const TileKind *kindOfLetter(char letter)
{
    for (const TileKind &kind : tileKinds)
        if (kind.backupLetter == letter)
            return &kind;
    return nullptr;
}

} // namespace

Backup::Backup(Ground &ground, Canvas &canvas, BoardNews &news, QObject *parent)
    : QObject(parent)
    , ground_(ground)
    , canvas_(canvas)
    , news_(news)
{}

QString Backup::file(const Ground &ground) { return product::backupFile(ground.AppFolder); }

void Backup::saveIfWanted()
{
    if (!ground_.options.storedIsOn(Setting::UseBackup))
        return;
    const bool written = tryToWrite(file(ground_));
    if (!std::exchange(failureKnown_, !written) && !written)
        tellFailure();
}

void Backup::SaveMyObjects(const QString &path)
{
    Procedure step{ground_.log, "SaveMyObjects", form};
    QString target = path;
    if (target.isEmpty()) {
        const SessionDialog ask = dialog(u"Wortel - Save Session"_s, u"SaveWLX"_s);
        step([&] { target = chooseToSave(ground_, ask); });
        if (target.isEmpty())
            return;
        step([&] { rememberFolder(ground_, ask, target); });
    }
    if (!tryToWrite(target))
        tellFailure();
}

bool Backup::tryToWrite(const QString &path)
{
    Procedure step{ground_.log, "SaveMyObjects", form, Procedure::Silent};
    return step([&] { writeBoard(path); });
}

void Backup::tellFailure()
{
    ground_.boxes.plainBox(Boxes::Icon::Warning, product::faultTitle,
                           u".BAK-Datei könnte nicht gespeichert werden"_s);
}

void Backup::writeBoard(const QString &path)
{
    MyObj array;
    array.addTiles(canvas_.store().tiles());
    writeFileAtomically(path, backup_file::encode(array));
    tellLost();
}

/// The letters that would come back from the file as question marks: told once, until others come.
void Backup::tellLost()
{
    QString texts;
    for (const auto &tile : canvas_.store().tiles())
        texts += tile->txt;
    const QString lost = windows1252::missing(texts);
    if (!lost.isEmpty() && lost != toldLost_)
        ground_.notes.tell(note::notInBackup, lost);
    toldLost_ = lost;
}

void Backup::RestoreMyObjects(const QString &path)
{
    Procedure step{ground_.log, "RestoreMyObjects", form};
    QString source = path;
    const SessionDialog ask = dialog(u"Wortel - Session laden"_s, u"RestoreWXL"_s);
    if (source.isEmpty())
        step([&] { source = chooseToOpen(ground_, ask); });
    if (source.isEmpty())
        return;
    if (path.isEmpty())
        step([&] { rememberFolder(ground_, ask, source); });
    const Hourglass hourglass;
    if (step([&] { readBoard(source); })) {
        step([&] { news_.open(); });
        ground_.notes.tell(note::boardRecovered);
    } else {
        ground_.boxes.plainBox(
            Boxes::Icon::Critical, product::faultTitle,
            u"Die BAK-Session konnte nicht eingelesen werden: "_s + source +
                u"\n\nDie Datei enthält ungültige Daten.\n\nDas Laden wird abgebrochen..."_s);
    }
}

/// What was read before a fault stays; if that is nothing, the board does.
void Backup::readBoard(const QString &path)
{
    TileStore &store = canvas_.store();
    const QByteArray bytes = ReadWholeFile(path);
    const std::vector<BackupRecord> records = backup_file::decode(bytes);
    if (records.empty() && !bytes.isEmpty())
        throw RuntimeError::of(RuntimeError::TypeMismatch); // an empty board has its record too
    TileList tiles;
    Procedure step{ground_.log, "RestoreMyObjects", form, Procedure::Silent};
    const bool whole = step([&] {
        for (const BackupRecord &record : records)
            if (const TileKind *kind = kindOfLetter(record.type))
                tiles.push_back(store.makeTile(record.left, record.top, record.caption, *kind));
    });
    if (whole || !tiles.empty()) {
        store.replaceAll(std::move(tiles));
        store.recount();
        canvas_.repaint();
    }
    if (!whole)
        throw RuntimeError::of(RuntimeError::Overflow);
}
