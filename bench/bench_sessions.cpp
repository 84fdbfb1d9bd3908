// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench.h"

#include "persistence/backup.h"
#include "platform/files.h"
#include "platform/ini_file.h"
#include "support/test_board.h"

#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

constexpr int tileCount = 500;

/// A board of 500 tiles with undo and backup.
struct KeptBoard : TestBoard
{
    KeptBoard()
        : TestBoard(1, {1920, 1080})
    {
        for (int i = 0; i < tileCount; ++i)
            lay(tileKinds[static_cast<std::size_t>(i) % 3], i * 37 % 1800, i * 53 % 900, u"stem%1"_s.arg(i));
        t.store.SaveSetting(u"Settings"_s, u"UseBackup"_s, u"1"_s);
        r.undo.ClearCollBuffer();
    }
};

double commitWithBackup()
{
    KeptBoard board;
    board.r.backup.saveIfWanted();
    const QByteArray bytes = ReadWholeFile(Backup::file(board.t.ground));
    const QString beside = board.t.AppFolder + u"same.bytes"_s;
    return bench::ratio([&] { board.r.news.Commit(); }, [&] { writeFileAtomically(beside, bytes); },
                        200); // many rounds: the disk is the noisiest thing of all
}

double undo()
{
    KeptBoard board;
    board.t.store.SaveSetting(u"Settings"_s, u"UseBackup"_s, u"0"_s);
    for (int i = 0; i < 5; ++i)
        board.r.news.Commit();
    bool back = false;
    return bench::ratio([&] { (back = !back) ? board.r.undo.UndoAction() : board.r.undo.RedoAction(); },
                        [&] { board.canvas->CanvasRedrawAll(); }, 20);
}

/// A file of as many sections, written and read key by key.
void fillAndRead(const QString &path, int sections)
{
    IniFile file(path);
    for (int i = 0; i < sections; ++i)
        file.write(u"Morpheme%1"_s.arg(i), u"Left"_s, QString::number(i));
    file.save();
    const IniFile again(path);
    int sum = 0;
    for (int i = 0; i < sections; ++i)
        sum += again.read(u"Morpheme%1"_s.arg(i), u"Left"_s).toInt();
    bench::keep(sum);
    QFile::remove(path);
}

double manySections()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"viele.wlx"_s);
    return bench::ratio([&] { fillAndRead(path, 40000); }, [&] { fillAndRead(path, 10000); }, 5);
}

const bench::Row rows[] = {
    {"sessions: four times the sections in an ini file (a fourth of them)", 6.0, manySections},
    {"sessions: commit of 500 tiles with backup (atomic writes)", 3.0, commitWithBackup},
    {"sessions: undo of 500 tiles (redraws)", 2.5, undo},
};

} // namespace
