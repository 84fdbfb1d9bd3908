# SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
# SPDX-License-Identifier: GPL-3.0-or-later
# wortel_room(CORE a.cpp b.cpp UI c.cpp) is called by each folder of src: it says which of the folder's files need
# nothing but Qt6::Core and which may open a window. The linker keeps the first kind honest.
function(wortel_room)
    cmake_parse_arguments(ROOM "" "" "CORE;UI" ${ARGN})
    foreach(file IN LISTS ROOM_CORE)
        target_sources(wortel_core PRIVATE ${CMAKE_CURRENT_SOURCE_DIR}/${file})
    endforeach()
    foreach(file IN LISTS ROOM_UI)
        target_sources(wortel_ui PRIVATE ${CMAKE_CURRENT_SOURCE_DIR}/${file})
    endforeach()
endfunction()
