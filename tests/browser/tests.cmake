# SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
# SPDX-License-Identifier: GPL-3.0-or-later
wortel_test(browser SLOW TIMEOUT 300
    SOURCES
        tst_web_page_in_browser.cpp
)
