# SPDX-FileCopyrightText: 2026 The RkBaseUI developers
# SPDX-License-Identifier: LGPL-3.0-or-later

# cmake -DBUILD_DIR=<folder> -DPREFIX=<folder> [-DCOMPONENT=<name>] [-DWITHOUT=<header>] -P install.cmake
#
# Installs a build, or one component of it, into a prefix that holds nothing else: a file that is no longer
# installed must not be found where an earlier run left it. Headers of the name WITHOUT are left out.
file(REMOVE_RECURSE "${PREFIX}")
set(component "")
if(COMPONENT)
    set(component --component "${COMPONENT}")
endif()
execute_process(
    COMMAND "${CMAKE_COMMAND}" --install "${BUILD_DIR}" --prefix "${PREFIX}" ${component}
    RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "The build cannot be installed: ${result}")
endif()
if(WITHOUT)
    file(GLOB_RECURSE headers "${PREFIX}/*/${WITHOUT}")
    if(NOT headers)
        message(FATAL_ERROR "There is no ${WITHOUT} to leave out")
    endif()
    file(REMOVE ${headers})
endif()
