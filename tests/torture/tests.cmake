# SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
# SPDX-License-Identifier: GPL-3.0-or-later
wortel_test(torture SLOW TIMEOUT 600
    SOURCES
        ../../tools/soak/soak_callers.cpp
        ../../tools/soak/soak_ground.cpp
        ../../tools/soak/soak_hand.cpp
        tst_soak.cpp
        tst_torture.cpp
)
target_include_directories(tst_torture PRIVATE ${PROJECT_SOURCE_DIR}/tools)
# One function starts the program some two hundred times.
set_tests_properties(torture PROPERTIES
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QTEST_FUNCTION_TIMEOUT=590000;LC_ALL=C.UTF-8")

# The program that is killed.
add_executable(torture_player torture/torture_player.cpp)
target_include_directories(torture_player PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
target_link_libraries(torture_player PRIVATE wortel_ui)
add_dependencies(tst_torture torture_player)
