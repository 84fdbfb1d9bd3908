// SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "board/canvas/arrangement.h"
#include "board/canvas/background_picture.h"
#include "board/canvas/board_fit.h"
#include "board/canvas/bulk_tiles.h"
#include "board/canvas/canvas.h"
#include "board/canvas/opt_types.h"
#include "board/canvas/placement.h"
#include "board/hand/board_commands.h"
#include "board/hand/board_focus.h"
#include "board/hand/board_keys.h"
#include "board/hand/board_pointer.h"
#include "board/hand/command_router.h"
#include "board/hand/menu_model.h"
#include "board/hand/morpheme_lists.h"
#include "board/hand/popup_menu.h"
#include "board/reader/board_reader.h"
#include "board/tiles/affix_homes.h"
#include "board/tiles/board_news.h"
#include "dialogs/msn_style.h"
#include "games/kernling/frm_kernling.h"
#include "games/klotar/word_game.h"
#include "games/paarlon/paarlon.h"
#include "games/retype/retype_mode.h"
#include "games/retype/strip_control.h"
#include "games/scores/high_scores.h"
#include "games/tonarin/vowel_board.h"
#include "generators/word_maker.h"
#include "language/chooser/word_chooser.h"
#include "language/dictionary_panel.h"
#include "language/list_chooser.h"
#include "language/list_loader.h"
#include "language/tips.h"
#include "language/word_check.h"
#include "language/word_list_panel.h"
#include "language/word_tests.h"
#include "output/printing/printing.h"
#include "persistence/backup.h"
#include "persistence/file_type.h"
#include "persistence/sessions.h"
#include "persistence/settings/frm_options.h"
#include "persistence/undo_ring.h"
#include "shell/prog_init.h"

class ControlSheet;
class PlayState;
class StatusLine;
struct Ground;
struct MainControls;
struct WordLists;

/// All rooms of the house, made in the order in which they stand on each other.
struct Rooms
{
    /// What the rooms stand on, beside the ground.
    struct Hall
    {
        MainControls &controls;
        ControlSheet &sheet;
        StatusLine &status;
        WordLists &lists;
        PlayState &play;
    };

    Rooms(Ground &ground, const Hall &hall);
    ~Rooms();

    // dialogs
    frmMsnStyle popup;

    // board
    BoardNews news;
    OptTypes optTypes;
    FormMeasures measures;
    CanvasSurface surface;
    TileStore store;
    Canvas canvas;
    BoardFit fit;
    MorphemeLists morphemeLists;
    BackgroundPicture background;
    Placement placement;
    AffixHomes homes;
    BulkTiles bulk;
    Arrangement arrangement;
    MenuModel menus;
    PopupMenu cp;
    CommandRouter router;
    BoardCommands commands;
    BoardFocus focus;
    BoardPointer pointer;
    BoardKeys keys;
    BoardReader reader;

    // language
    ListLoader loader;
    WordTests tests;
    DictionaryPanel dictionary;
    WordListPanel wordList;
    WordCheck check;
    ListChooser chooser;
    WordChooser wordChooser;
    Tips tips;

    // generators
    WordMaker maker;

    // persistence
    frmOptions options;
    UndoRing undo;
    Backup backup;
    Sessions sessions;
    FileType fileType;

    // output
    Printing printing;

    // games
    HighScores scores;
    FrmKernling kernling;
    StripControl strip;
    RetypeMode retype;
    VowelBoard vowelBoard;
    WordGame game;
    Paarlon paarlon;

    // shell
    ProgInit progInit;
};
