# SPDX-License-Identifier: BSD-3-Clause
#[=======================================================================[.rst:
FindQtPropertyBrowser
---------------------

Finds an installed Qt Solutions property browser built against Qt 5. It has no
package of its own on most systems: the headers (``qtpropertybrowser.h`` and its
siblings) sit in an include folder of their own, and the library carries one of
several names depending on how it was built.

Imported target
^^^^^^^^^^^^^^^
``QtPropertyBrowser::QtPropertyBrowser``
  The property browser library; it links ``Qt5::Widgets``.

Result variables
^^^^^^^^^^^^^^^^
``QtPropertyBrowser_FOUND``, ``QtPropertyBrowser_INCLUDE_DIRS``, ``QtPropertyBrowser_LIBRARIES``.

Cache variables
^^^^^^^^^^^^^^^
``QtPropertyBrowser_INCLUDE_DIR``, ``QtPropertyBrowser_LIBRARY``.
#]=======================================================================]

find_path(QtPropertyBrowser_INCLUDE_DIR
    NAMES qtpropertybrowser.h
    PATH_SUFFIXES qtpropertybrowser QtPropertyBrowser qtsolutions qt5/qtpropertybrowser qt5/QtPropertyBrowser
)
find_library(QtPropertyBrowser_LIBRARY
    NAMES QtSolutions_PropertyBrowser-head QtSolutions_PropertyBrowser-2.6 QtSolutions_PropertyBrowser
          QtPropertyBrowser qtpropertybrowser
)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(QtPropertyBrowser
    REQUIRED_VARS QtPropertyBrowser_LIBRARY QtPropertyBrowser_INCLUDE_DIR
)

if(QtPropertyBrowser_FOUND)
    set(QtPropertyBrowser_INCLUDE_DIRS "${QtPropertyBrowser_INCLUDE_DIR}")
    set(QtPropertyBrowser_LIBRARIES "${QtPropertyBrowser_LIBRARY}")
    if(NOT TARGET QtPropertyBrowser::QtPropertyBrowser)
        find_package(Qt5 COMPONENTS Widgets REQUIRED)
        add_library(QtPropertyBrowser::QtPropertyBrowser UNKNOWN IMPORTED)
        set_target_properties(QtPropertyBrowser::QtPropertyBrowser PROPERTIES
            IMPORTED_LOCATION "${QtPropertyBrowser_LIBRARY}"
            INTERFACE_INCLUDE_DIRECTORIES "${QtPropertyBrowser_INCLUDE_DIR}"
            INTERFACE_LINK_LIBRARIES "Qt5::Widgets"
        )
        if(WIN32)
            # The Qt Solutions headers import their symbols only when told to.
            set_property(TARGET QtPropertyBrowser::QtPropertyBrowser APPEND PROPERTY
                INTERFACE_COMPILE_DEFINITIONS QT_QTPROPERTYBROWSER_IMPORT)
        endif()
    endif()
endif()

mark_as_advanced(QtPropertyBrowser_INCLUDE_DIR QtPropertyBrowser_LIBRARY)
