# SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
# SPDX-License-Identifier: GPL-3.0-or-later
wortel_test(language
    SOURCES
        tst_choose_wortel.cpp
        tst_chooser_lists.cpp
        tst_chooser_rules.cpp
        tst_list_chooser.cpp
        tst_list_loader.cpp
        tst_tips.cpp
        tst_word_check.cpp
        tst_word_panels.cpp
        tst_word_tests.cpp
)
