# Installation and the Debian package.
#
# The layout is the one the programs look for at run time: <prefix>/bin for
# the programs, <prefix>/share/tavi for the shared data folder (read-only),
# and the program-level settings TAVI_SYS.ini in the configuration folder:
# /etc/tavi/ for the prefix /usr (the package), else <prefix>/etc/tavi/.
# `cpack -G DEB` in the build tree (or tools/make-deb.sh) packs the same tree
# for the prefix /usr.

install(TARGETS tavi RUNTIME DESTINATION bin)
install(DIRECTORY data/ DESTINATION share/tavi PATTERN TAVI_SYS.ini EXCLUDE)

# The configuration folder follows the prefix the tree is installed to, which
# for `cmake --install --prefix` and for CPack is only known at install time.
install(CODE "set(tavi_sys_ini \"${CMAKE_SOURCE_DIR}/data/TAVI_SYS.ini\")")
install(CODE [[
  if(CMAKE_INSTALL_PREFIX STREQUAL "/usr")
    set(tavi_config_dir "/etc/tavi")
  else()
    set(tavi_config_dir "${CMAKE_INSTALL_PREFIX}/etc/tavi")
  endif()
  # file(INSTALL) puts $DESTDIR in front itself.
  file(INSTALL DESTINATION "${tavi_config_dir}" TYPE FILE FILES "${tavi_sys_ini}")
]])

# Documentation and manual pages, with or without the desktop program.
install(FILES README.md DESTINATION share/doc/tavi)
install(DIRECTORY docs/ DESTINATION share/doc/tavi/docs PATTERN man EXCLUDE)
set(TAVI_MAN_PAGES docs/man/tavi.1)
if(TARGET tavi-gui)
  list(APPEND TAVI_MAN_PAGES docs/man/tavi-gui.1)
endif()
# Compressed as Debian installs manual pages (gzip -n: the same bytes each build).
find_program(TAVI_GZIP gzip)
if(TAVI_GZIP)
  set(compressed)
  foreach(page IN LISTS TAVI_MAN_PAGES)
    get_filename_component(name ${page} NAME)
    set(gz ${CMAKE_BINARY_DIR}/man/${name}.gz)
    add_custom_command(OUTPUT ${gz}
      COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/man
      COMMAND ${TAVI_GZIP} -9nc ${CMAKE_SOURCE_DIR}/${page} > ${gz}
      DEPENDS ${CMAKE_SOURCE_DIR}/${page}
      COMMENT "Compressing the manual page ${name}")
    list(APPEND compressed ${gz})
  endforeach()
  add_custom_target(tavi-man-pages ALL DEPENDS ${compressed})
  install(FILES ${compressed} DESTINATION share/man/man1)
else()
  install(FILES ${TAVI_MAN_PAGES} DESTINATION share/man/man1)
endif()

# Shell completion, found by bash-completion and Debian's zsh on demand.
install(FILES dist/completion/tavi.bash DESTINATION share/bash-completion/completions
        RENAME tavi)
install(FILES dist/completion/_tavi DESTINATION share/zsh/vendor-completions)
if(TARGET tavi-gui)
  install(FILES dist/completion/tavi.bash DESTINATION share/bash-completion/completions
          RENAME tavi-gui)
endif()

# The file types: transcripts (.tvi) and reference databases (.tvidb).
install(FILES dist/tavi.xml DESTINATION share/mime/packages)

# The desktop program: its menu entry, opening transcripts, and its icon at
# the usual sizes (drawn from the SVG when rsvg-convert is there; otherwise
# the scalable icon alone, which every current desktop draws itself).
if(TARGET tavi-gui)
  install(TARGETS tavi-gui RUNTIME DESTINATION bin)
  install(FILES dist/tavi.desktop DESTINATION share/applications)
  install(FILES dist/tavi.svg DESTINATION share/icons/hicolor/scalable/apps)
  find_program(TAVI_RSVG_CONVERT rsvg-convert)
  if(TAVI_RSVG_CONVERT)
    set(icons)
    foreach(size 16 22 24 32 48 64 128 256)
      set(png ${CMAKE_BINARY_DIR}/icons/${size}x${size}/tavi.png)
      add_custom_command(OUTPUT ${png}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/icons/${size}x${size}
        COMMAND ${TAVI_RSVG_CONVERT} -w ${size} -h ${size} -o ${png}
                ${CMAKE_SOURCE_DIR}/dist/tavi.svg
        DEPENDS ${CMAKE_SOURCE_DIR}/dist/tavi.svg
        COMMENT "Drawing the ${size}x${size} icon")
      install(FILES ${png} DESTINATION share/icons/hicolor/${size}x${size}/apps)
      list(APPEND icons ${png})
    endforeach()
    add_custom_target(tavi-icons ALL DEPENDS ${icons})
  else()
    message(STATUS "rsvg-convert not found: installing the scalable icon only")
  endif()
endif()

# The Debian package.
set(CPACK_PACKAGE_NAME tavi)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_VENDOR "TAVI")
set(CPACK_PACKAGE_CONTACT "TAVI developers <tavi@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "language sample analysis: transcripts, measures, reports")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
  "TAVI checks transcripts of language samples written in a strict notation,
computes language measures (MLU, NTW, NDW, moving-average TTR, mazes,
pauses, errors, Brown's stage) and writes reports.
This package holds the command line program tavi and, when built, the
desktop program tavi-gui, with the shared data, sample transcripts,
manual pages and shell completion.")
# Install for the prefix /usr with DESTDIR the staging folder, whatever prefix
# the build tree was configured with, so the install code above sees /usr and
# puts TAVI_SYS.ini in /etc/tavi.
set(CPACK_SET_DESTDIR ON)
set(CPACK_INSTALL_PREFIX /usr)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The window icon is an SVG: Qt draws it through the SVG icon engine.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-dejavu-core, libqt6svg6")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "shared-mime-info, desktop-file-utils, man-db, bash-completion")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
# /etc/tavi/TAVI_SYS.ini is the administrator's: kept on upgrade, removed on purge.
file(WRITE ${CMAKE_BINARY_DIR}/debian/conffiles "/etc/tavi/TAVI_SYS.ini\n")
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA ${CMAKE_BINARY_DIR}/debian/conffiles)
set(CPACK_GENERATOR DEB)
set(CPACK_SOURCE_GENERATOR "")
include(CPack)
