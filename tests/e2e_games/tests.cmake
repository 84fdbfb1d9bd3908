# SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
# SPDX-License-Identifier: GPL-3.0-or-later
# The games by hand take as long as all else by hand, so they are a program of their own, and both run side by side.
wortel_test(e2e_games SLOW TIMEOUT 600
    SOURCES
        ../e2e/desktop.cpp
        ../e2e/known_board.cpp
        tst_chosen_words.cpp
        tst_games_by_hand.cpp
        tst_memory_by_hand.cpp
        tst_stems_by_hand.cpp
)
add_dependencies(tst_e2e_games wortel)
# They mostly wait: two at a time, when nothing else keeps the machine busy.
set_tests_properties(e2e e2e_games PROPERTIES RUN_SERIAL FALSE DEPENDS "${wortel_rooms}")
