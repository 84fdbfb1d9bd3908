# SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
# SPDX-License-Identifier: GPL-3.0-or-later

# The data are read with the parts of the maintainers' program that need no libhunspell.
wortel_test(langdata
    SOURCES
        tst_langdata.cpp
        ../../tools/langdata/blocklist.cpp
        ../../tools/langdata/boards.cpp
        ../../tools/langdata/expander.cpp
        ../../tools/langdata/maker.cpp
        ../../tools/langdata/segmenter.cpp
        ../../tools/langdata/textfiles.cpp
)
target_include_directories(tst_langdata PRIVATE ${PROJECT_SOURCE_DIR}/tools)
