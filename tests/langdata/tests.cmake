# SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
# SPDX-License-Identifier: GPL-3.0-or-later

# The maintainers' program is tested without libhunspell: all but its main file.
wortel_test(langdata
    SOURCES
        tst_langdata.cpp
        tst_langdata_tool.cpp
        ../../tools/langdata/blocklist.cpp
        ../../tools/langdata/boards.cpp
        ../../tools/langdata/expander.cpp
        ../../tools/langdata/maker.cpp
        ../../tools/langdata/report.cpp
        ../../tools/langdata/segmenter.cpp
        ../../tools/langdata/sources.cpp
        ../../tools/langdata/textfiles.cpp
        ../../tools/langdata/workshop.cpp
)
target_include_directories(tst_langdata PRIVATE ${PROJECT_SOURCE_DIR}/tools)
