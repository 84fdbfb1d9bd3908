# SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
# SPDX-License-Identifier: GPL-3.0-or-later
wortel_test(e2e SLOW TIMEOUT 300
    SOURCES
        desktop.cpp
        tst_first_board.cpp
)
add_dependencies(tst_e2e wortel)
