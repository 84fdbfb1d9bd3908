# SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
# SPDX-License-Identifier: GPL-3.0-or-later
# cmake -DFROM=<data> -DTO=<folder of the program> -P CopyData.cmake: lays the language data beside the built program. A file that was edited there
# (newer than its source) stays.
file(GLOB_RECURSE files RELATIVE ${FROM} ${FROM}/*)
foreach(file IN LISTS files)
    if(NOT EXISTS "${TO}/${file}" OR "${FROM}/${file}" IS_NEWER_THAN "${TO}/${file}")
        get_filename_component(folder "${TO}/${file}" DIRECTORY)
        file(MAKE_DIRECTORY "${folder}")
        file(COPY_FILE "${FROM}/${file}" "${TO}/${file}" ONLY_IF_DIFFERENT)
        file(TOUCH_NOCREATE "${TO}/${file}")
    endif()
endforeach()
