# SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
# SPDX-License-Identifier: GPL-3.0-or-later
wortel_test(persistence
    SOURCES
        settings/tst_frm_options.cpp
        tst_backup.cpp
        tst_file_type.cpp
        tst_keeping.cpp
        tst_sessions.cpp
        tst_undo_ring.cpp
)
