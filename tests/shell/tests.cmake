# SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
# SPDX-License-Identifier: GPL-3.0-or-later
wortel_test(shell
    SOURCES
        handbook/tst_help.cpp
        tst_start_rules.cpp
        tst_start_steps.cpp
)
