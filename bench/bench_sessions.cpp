// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench.h"

#include "board/hand/menu_model.h"
#include "persistence/backup.h"
#include "persistence/undo_ring.h"
#include "platform/files.h"
#include "support/test_board.h"

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
        undo.ClearCollBuffer();
    }

    MenuModel menus{[this] { return MenuFacts{modes, true, {}}; }};
    UndoRing undo{t.ground, modes, menus, *canvas};
    Backup backup{t.ground, modes, *canvas, *bulk};
};

double commitWithBackup()
{
    KeptBoard board;
    board.backup.saveIfWanted();
    const QByteArray bytes = ReadWholeFile(Backup::file(board.t.ground));
    const QString beside = board.t.AppFolder + u"same.bytes"_s;
    return bench::ratio(
        [&] {
            board.undo.SetCollBuffer();
            board.backup.saveIfWanted();
        },
        [&] { writeFileAtomically(beside, bytes); },
        200); // many rounds: the disk is the noisiest thing of all
}

double undo()
{
    KeptBoard board;
    for (int i = 0; i < 5; ++i)
        board.undo.SetCollBuffer();
    bool back = false;
    return bench::ratio([&] { (back = !back) ? board.undo.UndoAction() : board.undo.RedoAction(); },
                        [&] { board.canvas->CanvasRedrawAll(); }, 20);
}

const bench::Row rows[] = {
    {"sessions: commit of 500 tiles with backup (atomic writes)", 3.0, commitWithBackup},
    {"sessions: undo of 500 tiles (redraws)", 2.5, undo},
};

} // namespace
