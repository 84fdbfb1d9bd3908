# SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
# SPDX-License-Identifier: GPL-3.0-or-later
wortel_test(shell
    SOURCES
        handbook/tst_help.cpp
        tst_keys_everywhere.cpp
        tst_data_upgrade.cpp
        tst_board_fit.cpp
        tst_long_press.cpp
        tst_main_window.cpp
        tst_notes.cpp
        tst_one_work.cpp
        tst_reader_tree.cpp
        tst_sheets.cpp
        tst_size_change.cpp
        tst_start_rules.cpp
        tst_start_steps.cpp
        tst_wiring.cpp
)
