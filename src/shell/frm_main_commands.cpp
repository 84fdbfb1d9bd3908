// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
// The commands of the menus: each room registers its own numbers, the window those that are its own.
#include "shell/frm_main.h"

#include "output/web/frm_save_as_web.h"
#include "platform/gate.h"
#include "platform/ground.h"
#include "platform/word_lists.h"
#include "shell/rooms.h"
#include "widgets/main_controls.h"

using namespace Qt::StringLiterals;

void frmMain::wireCommands()
{
    Rooms &r = *rooms_;
    r.chooser.registerCommands(r.router);
    r.tips.registerCommands(r.router);
    r.dictionary.registerCommands(r.router);
    r.wordList.registerCommands(r.router);
    r.retype.registerCommands(r.router);
    r.game.registerCommands(r.router);
    r.paarlon.registerCommands(r.router);
    r.sessions.registerCommands(r.router);
    r.undo.registerCommands(r.router);
    r.printing.registerCommands(r.router);
    r.router.onMenu(1907, [this] { saveAsWeb(); });
    r.router.onMenu(601, [&r] { r.check.Command2_MouseDown(Qt::LeftButton); });
    constexpr struct
    {
        ScoredGame game;
        int show, reset; ///< numbers of the commands
    } lists[] = {{ScoredGame::Klotar, 2900, 2901},
                 {ScoredGame::Kernling, 3104, 3105},
                 {ScoredGame::Tonarin, 3106, 3107}};
    for (const auto &list : lists) {
        r.router.onMenu(list.show, [&r, game = list.game] { r.scores.DisplayHighScores(game); });
        r.router.onMenu(list.reset, [&r, game = list.game] { r.scores.ResetScores(game); });
    }
    r.router.onMenu(901, [this] { showOptions(); });
    r.router.onMenu(1701, [&r] { r.kernling.openModally(); });
    r.router.onMenu(1001, [this] { showHelp(); });
    r.router.onMenu(1003, [this] { showAbout(); });
    r.router.onMenu(1906, [this] { close(); });
    r.router.onMenu(1513, [&r] { r.fit.toggle(); });
    size_.registerCommands(r.router);
}

void frmMain::saveAsWeb()
{
    Sessions &sessions = rooms_->sessions;
    sessions.SaveObjects();
    if (!ground_.gate.isClosing())
        FrmSaveAsWeb(ground_, sessions.CurrentSessionFile(), sessions.WebExportName(), this).edit();
}
