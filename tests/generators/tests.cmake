# SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
# SPDX-License-Identifier: GPL-3.0-or-later
wortel_test(generators
    SOURCES
        tst_nonsense_rules.cpp
        tst_scrambled_words.cpp
        tst_seeded_boards.cpp
        tst_word_maker.cpp
)
