# SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
# SPDX-License-Identifier: GPL-3.0-or-later
wortel_test(output
    SOURCES
        tst_html_to_text.cpp
        tst_text_loading.cpp
        tst_columns.cpp
        tst_frm_save_as_web.cpp
        tst_printing.cpp
        tst_web_page.cpp
)
