# SPDX-License-Identifier: BSD-3-Clause
#[=======================================================================[.rst:
FindQwt
-------

Finds the Qwt 6 plotting library built against Qt 5.

Debian and Ubuntu ship Qwt without a CMake package: the headers live in
``/usr/include/qwt`` and the library is ``libqwt-qt5``.

Imported target
^^^^^^^^^^^^^^^
``Qwt::Qwt``
  The Qwt library; it links ``Qt5::Widgets``, ``Qt5::Svg`` and ``Qt5::PrintSupport``.

Result variables
^^^^^^^^^^^^^^^^
``Qwt_FOUND``, ``Qwt_VERSION``, ``Qwt_INCLUDE_DIRS``, ``Qwt_LIBRARIES``.

Cache variables
^^^^^^^^^^^^^^^
``Qwt_INCLUDE_DIR``, ``Qwt_LIBRARY``.
#]=======================================================================]

find_path(Qwt_INCLUDE_DIR
    NAMES qwt_global.h
    PATH_SUFFIXES qwt qwt-qt5 qt5/qwt
)
find_library(Qwt_LIBRARY
    NAMES qwt-qt5 qwt6-qt5 qwt
)

if(Qwt_INCLUDE_DIR AND EXISTS "${Qwt_INCLUDE_DIR}/qwt_global.h")
    file(STRINGS "${Qwt_INCLUDE_DIR}/qwt_global.h" _qwt_version_line
        REGEX "^#define[ \t]+QWT_VERSION_STR[ \t]+\"[0-9.]+\"")
    string(REGEX REPLACE ".*\"([0-9.]+)\".*" "\\1" Qwt_VERSION "${_qwt_version_line}")
    unset(_qwt_version_line)
endif()

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Qwt
    REQUIRED_VARS Qwt_LIBRARY Qwt_INCLUDE_DIR
    VERSION_VAR Qwt_VERSION
)

if(Qwt_FOUND)
    set(Qwt_INCLUDE_DIRS "${Qwt_INCLUDE_DIR}")
    set(Qwt_LIBRARIES "${Qwt_LIBRARY}")
    if(NOT TARGET Qwt::Qwt)
        find_package(Qt5 COMPONENTS Widgets Svg PrintSupport REQUIRED)
        add_library(Qwt::Qwt UNKNOWN IMPORTED)
        set_target_properties(Qwt::Qwt PROPERTIES
            IMPORTED_LOCATION "${Qwt_LIBRARY}"
            INTERFACE_INCLUDE_DIRECTORIES "${Qwt_INCLUDE_DIR}"
            INTERFACE_LINK_LIBRARIES "Qt5::Widgets;Qt5::Svg;Qt5::PrintSupport"
        )
        if(WIN32)
            set_property(TARGET Qwt::Qwt APPEND PROPERTY INTERFACE_COMPILE_DEFINITIONS QWT_DLL)
        endif()
    endif()
endif()

mark_as_advanced(Qwt_INCLUDE_DIR Qwt_LIBRARY)
