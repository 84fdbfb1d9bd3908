# SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
# SPDX-License-Identifier: GPL-3.0-or-later
wortel_test(board
    SOURCES
        canvas/tst_bulk_tiles.cpp
        canvas/tst_canvas.cpp
        canvas/tst_placement.cpp
        hand/tst_commands.cpp
        hand/tst_menus.cpp
        hand/tst_morpheme_lists.cpp
        hand/tst_pointer.cpp
        hand/tst_random_player.cpp
        hand/tst_tile_keys.cpp
        reader/tst_board_reader.cpp
        tiles/tst_board_rules.cpp
        tiles/tst_tile_store.cpp
)
