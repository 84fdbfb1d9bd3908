# SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
# SPDX-License-Identifier: GPL-3.0-or-later
wortel_test(e2e SLOW TIMEOUT 600
    SOURCES
        desktop.cpp
        known_board.cpp
        tst_blind_child.cpp
        tst_board_by_hand.cpp
        tst_first_board.cpp
        tst_interrupted.cpp
        tst_kept_boards.cpp
        tst_keys_alone.cpp
        tst_size_by_hand.cpp
        tst_words_by_hand.cpp
)
# The screen reader's end of the accessibility bus.
find_package(Qt6 6.4 REQUIRED COMPONENTS DBus)
target_link_libraries(tst_e2e PRIVATE Qt6::DBus)
add_dependencies(tst_e2e wortel)
