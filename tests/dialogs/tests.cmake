# SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
# SPDX-License-Identifier: GPL-3.0-or-later
wortel_test(dialogs
    SOURCES
        tst_boxes.cpp
        tst_msn_style.cpp
)
