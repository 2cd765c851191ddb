# What `cmake --install` puts where, and the Debian package that `cpack` makes of it.
include(GNUInstallDirs)

install(TARGETS tallyvane RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES packaging/tallyvane.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES packaging/tallyvane.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES resources/svg/vaneLogo128.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps
  RENAME tallyvane.svg)
foreach(SIZE 64 128)
  install(FILES resources/vaneLogo${SIZE}.png DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${SIZE}x${SIZE}/apps
    RENAME tallyvane.png)
endforeach()
install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/tallyvane RENAME copyright)
install(FILES packaging/THIRD_PARTY.md CHANGELOG.md SECURITY.md DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/tallyvane)

find_program(GZIP gzip REQUIRED)
add_custom_command(OUTPUT ${CMAKE_BINARY_DIR}/tallyvane.1.gz
  COMMAND ${GZIP} -9nc ${CMAKE_SOURCE_DIR}/packaging/tallyvane.1 > ${CMAKE_BINARY_DIR}/tallyvane.1.gz
  DEPENDS packaging/tallyvane.1)
add_custom_target(manual_page ALL DEPENDS ${CMAKE_BINARY_DIR}/tallyvane.1.gz)
install(FILES ${CMAKE_BINARY_DIR}/tallyvane.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tallyvane)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "The Tallyvane team <team@${TALLYVANE_WEB_HOST}>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "diary for people with type 2 diabetes")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "One table of days with glucose readings and weight, lights against personal limits,
averages, graphs, a journal, logs, reports and archives. All data are plain text.
It is no medical device: any change of treatment belongs to a doctor.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "http://${TALLYVANE_WEB_HOST}/")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# What is loaded at run time, and so stands in no library's list: the display, and the lights, which are TIFF files.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-qpa-plugins, qt6-image-formats-plugins")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-dejavu-core, hunspell-en-us | hunspell-dictionary")
include(CPack)
