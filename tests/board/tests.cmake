# SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
# SPDX-License-Identifier: GPL-3.0-or-later
wortel_test(board
    SOURCES
        tst_board_rules.cpp
        tst_bulk_tiles.cpp
        tst_canvas.cpp
        tst_commands.cpp
        tst_menus.cpp
        tst_placement.cpp
        tst_pointer.cpp
        tst_random_player.cpp
        tst_tile_store.cpp
)
