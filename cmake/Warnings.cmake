# SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
# SPDX-License-Identifier: GPL-3.0-or-later
# What every target of the house is compiled with.
add_library(wortel_flags INTERFACE)
target_compile_options(wortel_flags INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion)
target_compile_definitions(wortel_flags INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_FOREACH
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)
if(WORTEL_WERROR)
    target_compile_options(wortel_flags INTERFACE -Werror)
endif()
if(WORTEL_SANITIZE)
    target_compile_options(wortel_flags INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=undefined
                                                  -fno-omit-frame-pointer)
    target_link_options(wortel_flags INTERFACE -fsanitize=address,undefined)
endif()
if(WORTEL_FUZZ)
    if(CMAKE_CXX_COMPILER_VERSION VERSION_LESS 16)
        target_include_directories(wortel_flags BEFORE INTERFACE ${PROJECT_SOURCE_DIR}/cmake/clang)
    endif()
    target_compile_options(wortel_flags INTERFACE -fsanitize=fuzzer-no-link,address,undefined
                                                  -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    target_link_options(wortel_flags INTERFACE -fsanitize=address,undefined)
endif()
