# SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
# SPDX-License-Identifier: GPL-3.0-or-later
wortel_test(games
    SOURCES
        klotar/tst_word_game.cpp
        retype/tst_retype_mode.cpp
        retype/tst_retype_ways.cpp
        retype/tst_strip_control.cpp
        scores/tst_high_scores.cpp
        tonarin/tst_vowels.cpp
)
