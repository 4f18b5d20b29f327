# SPDX-FileCopyrightText: 2026 The RkBaseUI developers
# SPDX-License-Identifier: LGPL-3.0-or-later

# Builds for 64-bit Windows on Debian. RK_WINDOWS_DEPENDENCIES is the folder that
# tools/windows/build-dependencies fills.
if(NOT RK_WINDOWS_DEPENDENCIES)
    get_filename_component(RK_WINDOWS_DEPENDENCIES
        "${CMAKE_CURRENT_LIST_DIR}/../build/windows-dependencies" ABSOLUTE)
endif()
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES RK_WINDOWS_DEPENDENCIES)

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_VERSION 6.1) # The oldest that the toolkit runs on.
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

# Besides the prefixes that a build is given.
list(APPEND CMAKE_PREFIX_PATH "${RK_WINDOWS_DEPENDENCIES}")
set(CMAKE_FIND_ROOT_PATH ${CMAKE_PREFIX_PATH} /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ENV{PKG_CONFIG_LIBDIR} "${RK_WINDOWS_DEPENDENCIES}/lib/pkgconfig")
set(PKG_CONFIG_ARGN --define-prefix)

# Its programs run while building.
file(GLOB Qt5LinguistTools_DIR "/usr/lib/*/cmake/Qt5LinguistTools")
# freeglut comes without the glut.h that CMake looks for.
set(GLUT_INCLUDE_DIR "${RK_WINDOWS_DEPENDENCIES}/include")
