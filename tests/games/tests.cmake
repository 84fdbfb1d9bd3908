# SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
# SPDX-License-Identifier: GPL-3.0-or-later
wortel_test(games
    SOURCES
        kernling/tst_frm_kernling.cpp
        kernling/tst_locate_game.cpp
        kernling/tst_text_source.cpp
        klotar/tst_word_game.cpp
        kernling/tst_stem_marking.cpp
        kernling/tst_stem_verdict.cpp
        kernling/tst_text_words.cpp
        paarlon/tst_memory_rules.cpp
        paarlon/tst_memory_scores.cpp
        paarlon/tst_memory_window.cpp
        retype/tst_retype_mode.cpp
        retype/tst_retype_ways.cpp
        retype/tst_strip_control.cpp
        scores/tst_high_scores.cpp
        tonarin/tst_vowels.cpp
)
