# Finds dxflib, which comes with a pkg-config file but without a CMake package.
#
# Defines the target dxflib::dxflib.

find_package(PkgConfig QUIET)
if(PkgConfig_FOUND)
    pkg_check_modules(PC_dxflib QUIET dxflib)
endif()

find_path(dxflib_INCLUDE_DIR
    NAMES dl_dxf.h
    HINTS ${PC_dxflib_INCLUDE_DIRS}
    PATH_SUFFIXES dxflib)
find_library(dxflib_LIBRARY
    NAMES dxflib
    HINTS ${PC_dxflib_LIBRARY_DIRS})
mark_as_advanced(dxflib_INCLUDE_DIR dxflib_LIBRARY)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(dxflib
    REQUIRED_VARS dxflib_LIBRARY dxflib_INCLUDE_DIR
    VERSION_VAR PC_dxflib_VERSION)

if(dxflib_FOUND AND NOT TARGET dxflib::dxflib)
    add_library(dxflib::dxflib UNKNOWN IMPORTED)
    set_target_properties(dxflib::dxflib PROPERTIES
        IMPORTED_LOCATION "${dxflib_LIBRARY}"
        INTERFACE_INCLUDE_DIRECTORIES "${dxflib_INCLUDE_DIR}")
endif()
