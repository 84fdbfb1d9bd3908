# SPDX-FileCopyrightText: 2026 Wortel-Meister contributors
# SPDX-License-Identifier: GPL-3.0-or-later
# What is installed where, and the Debian package: cmake --build --preset release --target package
include(GNUInstallDirs)
set(share ${CMAKE_INSTALL_DATADIR})

install(TARGETS wortel RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/data/ DESTINATION ${share}/wortel-meister/data)
install(FILES packaging/wortel-meister.desktop DESTINATION ${share}/applications)
install(FILES packaging/org.example.wortel_meister.metainfo.xml DESTINATION ${share}/metainfo)
install(FILES packaging/wortel-meister-mime.xml DESTINATION ${share}/mime/packages RENAME wortel-meister.xml)
install(FILES resources/icons/wortel-meister.svg DESTINATION ${share}/icons/hicolor/scalable/apps)
install(FILES resources/icons/application-x-wortel-session.svg DESTINATION ${share}/icons/hicolor/scalable/mimetypes)

# The documents of the package. Those that name who builds it are filled in, and those that Debian wants compressed are.
set(WORTEL_MAINTAINER "Wortel-Meister contributors <wortel-meister@example.org>" CACHE STRING "Who builds the package, with an address that answers")
set(MAINTAINER ${WORTEL_MAINTAINER})
set(documents ${share}/doc/wortel-meister)
foreach(document copyright changelog)
    configure_file(packaging/${document} ${PROJECT_BINARY_DIR}/packaging/${document} @ONLY)
endforeach()
configure_file(packaging/wortel.6 ${PROJECT_BINARY_DIR}/packaging/wortel.6 COPYONLY)
foreach(document changelog wortel.6)
    set(plain ${PROJECT_BINARY_DIR}/packaging/${document})
    add_custom_command(OUTPUT ${plain}.gz COMMAND gzip -9nkf ${plain} DEPENDS ${plain} VERBATIM)
    list(APPEND compressed ${plain}.gz)
endforeach()
add_custom_target(documents ALL DEPENDS ${compressed})
install(FILES ${PROJECT_BINARY_DIR}/packaging/wortel.6.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man6)
install(FILES ${PROJECT_BINARY_DIR}/packaging/copyright ${PROJECT_BINARY_DIR}/packaging/changelog.gz NOTICE DESTINATION ${documents})
# The licence's text is on every Debian system already, and its checker wants no second one.
if(EXISTS /usr/share/common-licenses/GPL-3)
    file(CREATE_LINK ../../common-licenses/GPL-3 ${PROJECT_BINARY_DIR}/packaging/LICENSE SYMBOLIC)
    install(FILES ${PROJECT_BINARY_DIR}/packaging/LICENSE DESTINATION ${documents})
else()
    install(FILES LICENSE DESTINATION ${documents})
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME wortel-meister)
set(CPACK_PACKAGE_VENDOR "Wortel-Meister contributors")
set(CPACK_PACKAGE_CONTACT "${WORTEL_MAINTAINER}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Game with German word parts")
set(CPACK_PACKAGE_DESCRIPTION "Yellow prefixes, red stems and blue suffixes lie on a board. Children
drag them together, join them into words and have the words checked
against a dictionary. Around it stand practice in copying words and
four games; all text on screen is German.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION education)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-liberation, qt6-qpa-plugins, libqt6svg6")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-translations-l10n, xdg-utils")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "cups, www-browser")
include(CPack)
