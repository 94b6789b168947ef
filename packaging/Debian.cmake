# Packages for Debian: configure with the preset "package" or "package-qt6", build, and run cpack in
# the build folder.

set(library_package libdxfviewer${PROJECT_VERSION_MAJOR})
set(development_package libdxfviewer-dev)
set(qt_development_package qtbase5-dev)
set(qt_translations_package qttranslations5-l10n)
if(DXFVIEWER_QT_SUFFIX)
    set(library_package libdxfviewer${DXFVIEWER_QT_SUFFIX}-${PROJECT_VERSION_MAJOR})
    set(development_package libdxfviewer${DXFVIEWER_QT_SUFFIX}-dev)
    set(qt_development_package qt${DXFVIEWER_QT_MAJOR}-base-dev)
    set(qt_translations_package qt${DXFVIEWER_QT_MAJOR}-translations-l10n)
endif()
set(app_package dxfviewer${DXFVIEWER_QT_SUFFIX})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME dxfviewer)
set(CPACK_PACKAGE_CONTACT "DXFViewer maintainers <maintainers@dxfviewer.example>")
set(CPACK_PACKAGING_INSTALL_PREFIX "${CMAKE_INSTALL_PREFIX}")
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL runtime development)
if(DXFVIEWER_BUILD_APP)
    list(APPEND CPACK_COMPONENTS_ALL app)
endif()
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(this_version "(= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})")

# The dependencies of a program are read from the program; this build's own library is not installed
# yet.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${PROJECT_BINARY_DIR}/dxfviewer")
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")

# CPack would run ldconfig from scripts of its own, but Debian wants the trigger. CPack leaves its
# scripts out if others are named, and files that do not exist are not packed.
file(WRITE "${CMAKE_CURRENT_BINARY_DIR}/triggers" "activate-noawait ldconfig\n")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA
    "${CMAKE_CURRENT_BINARY_DIR}/triggers"
    "${CMAKE_CURRENT_BINARY_DIR}/symbols"
    "${CMAKE_CURRENT_BINARY_DIR}/no-script/postinst"
    "${CMAKE_CURRENT_BINARY_DIR}/no-script/postrm")

# The first line of each package's description says what it is; CPack would put the project's
# summary before it.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")

set(about "It comes as a window for other programs to embed, with undo, and as the
parts that the window is made of.")

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${library_package})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION
"Qt ${DXFVIEWER_QT_MAJOR} widgets that show and erase DXF drawings - shared library
This library shows drawings in the DXF format and lets the user erase parts
of them.
${about}")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME ${development_package})
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "${library_package} ${this_version}, ${qt_development_package}, libdxflib-dev")
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION
"Qt ${DXFVIEWER_QT_MAJOR} widgets that show and erase DXF drawings - development files
This package holds what is needed to build programs with the library: the
headers, the files by which CMake and pkg-config find it, and the pages about
embedding it.
${about}")

set(CPACK_DEBIAN_APP_PACKAGE_NAME ${app_package})
set(CPACK_DEBIAN_APP_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_APP_PACKAGE_DEPENDS "${library_package} ${this_version}")
# Without the translations of Qt's own texts, boxes are half English.
set(CPACK_DEBIAN_APP_PACKAGE_RECOMMENDS "${qt_translations_package}")
set(CPACK_DEBIAN_APP_DESCRIPTION
"viewer and eraser for DXF drawings (Qt ${DXFVIEWER_QT_MAJOR})
This program opens drawings in the DXF format, shows them, and lets the user
erase parts of them, with undo. It saves the edited drawing, and makes pictures
of drawings as PNG, SVG and PDF, also without a display.")

find_program(GZIP gzip)
find_program(DPKG_GENSYMBOLS dpkg-gensymbols)
mark_as_advanced(GZIP DPKG_GENSYMBOLS)
set(library_soname "libdxfviewer${DXFVIEWER_QT_SUFFIX}.so.${PROJECT_VERSION_MAJOR}")
configure_file(debian/symbols.in symbols.in @ONLY)
configure_file(DebianFiles.cmake.in DebianFiles.cmake @ONLY)
set(CPACK_PRE_BUILD_SCRIPTS "${CMAKE_CURRENT_BINARY_DIR}/DebianFiles.cmake")
