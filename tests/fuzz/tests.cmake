# SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
# SPDX-License-Identifier: GPL-3.0-or-later
wortel_test(fuzz
    SOURCES
        fuzz_backup.cpp
        fuzz_ini.cpp
        fuzz_link.cpp
        fuzz_list.cpp
        fuzz_page.cpp
        fuzz_picture.cpp
        fuzz_session.cpp
        fuzz_settings.cpp
        fuzz_text.cpp
        targets.cpp
        tst_fuzz_corpus.cpp
)
