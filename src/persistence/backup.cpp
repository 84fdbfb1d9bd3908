// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/backup.h"

#include "board/canvas/bulk_tiles.h"
#include "board/canvas/canvas.h"
#include "persistence/backup_file.h"
#include "persistence/session_dialog.h"
#include "platform/boxes.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/ground.h"
#include "platform/modes.h"
#include "platform/options.h"
#include "platform/procedure.h"
#include "platform/product.h"
#include "widgets/guards.h"

#include <QScopedValueRollback>

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

Backup::Backup(Ground &ground, Modes &modes, Canvas &canvas, BulkTiles &bulk, QObject *parent)
    : QObject(parent)
    , ground_(ground)
    , modes_(modes)
    , canvas_(canvas)
    , bulk_(bulk)
{}

QString Backup::file(const Ground &ground) { return product::backupFile(ground.AppFolder); }

void Backup::saveIfWanted()
{
    if (ground_.options.storedIsOn(Setting::UseBackup))
        SaveMyObjects(file(ground_));
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
    if (!step([&] { writeBoard(target); }))
        ground_.boxes.plainBox(Boxes::Icon::Warning, product::faultTitle,
                               u".BAK-Datei könnte nicht gespeichert werden"_s);
    // Other events have their turn only now that the change is safe.
    step([&] { ground_.pump.yield(); });
}

void Backup::writeBoard(const QString &path)
{
    const QScopedValueRollback busy(modes_.BackupBusy, true);
    MyObj array;
    array.addTiles(canvas_.store().tiles());
    writeFileAtomically(path, backup_file::encode(array));
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
    step([&] { bulk_.RefillWithSpecNum(0); });
    if (path.isEmpty())
        step([&] { rememberFolder(ground_, ask, source); });
    const Hourglass hourglass;
    if (!step([&] { readBoard(source); }))
        ground_.boxes.plainBox(
            Boxes::Icon::Critical, product::faultTitle,
            u"Die BAK-Session konnte nicht eingelesen werden: "_s + source +
                u"\n\nDie Datei enthält ungültige Daten.\n\nDas Laden wird abgebrochen..."_s);
    step([&] { canvas_.store().counters().updateTotal(); });
}

void Backup::readBoard(const QString &path)
{
    TileStore &store = canvas_.store();
    for (const TileKind &kind : tileKinds)
        store.counters().set(kind.filterIndex, 0);
    const std::vector<BackupRecord> records = backup_file::decode(ReadWholeFile(path));
    const CanvasSurface::Batch batch(canvas_.surface());
    for (const BackupRecord &record : records) {
        const TileKind *kind = kindOfLetter(record.type);
        if (!kind)
            continue;
        store.CanvasDrawWortel(record.left, record.top, record.caption, kind->back, kind->text);
        store.counters().add(kind->filterIndex, 1);
    }
}
