# SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
# SPDX-License-Identifier: GPL-3.0-or-later
wortel_test(platform
    SOURCES
        tst_desktop.cpp
        tst_files.cpp
        tst_gate.cpp
        tst_ini_file.cpp
        tst_instance_link.cpp
        tst_options.cpp
        tst_picture_file.cpp
        tst_procedure.cpp
        tst_program_size.cpp
        tst_settings_file.cpp
        tst_system_info.cpp
        tst_text.cpp
        tst_window_file_dialogs.cpp
        tst_word_store.cpp
)
