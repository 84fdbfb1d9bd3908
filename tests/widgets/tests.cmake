# SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
# SPDX-License-Identifier: GPL-3.0-or-later
wortel_test(widgets
    SOURCES
        tst_main_controls.cpp
        tst_msg_scroller.cpp
        tst_press_button.cpp
        tst_scroller_strip.cpp
        tst_short_note.cpp
        tst_small_widgets.cpp
        tst_store_list.cpp
)
