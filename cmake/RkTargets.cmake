# SPDX-FileCopyrightText: 2026 The RkBaseUI developers
# SPDX-License-Identifier: LGPL-3.0-or-later

# Warnings that every target of the project is built with.
function(rk_set_warnings target)
    if(MSVC)
        # Without 4251 and 4275: an exported class may hold and derive from what is not exported.
        set(warnings /utf-8 /W4 /wd4251 /wd4275)
        set(as_errors /WX)
    else()
        set(warnings -Wall -Wextra -Wpedantic -Wshadow)
        set(as_errors -Werror)
    endif()
    if(RKBASEUI_WARNINGS_AS_ERRORS)
        list(APPEND warnings ${as_errors})
    endif()
    target_compile_options(${target} PRIVATE "$<$<COMPILE_LANGUAGE:CXX>:${warnings}>")
endfunction()

# rk_windows_resource(<target> <description> [<icon>])
#
# What Windows shows of a program or library: its version, a description, and the icon of a program.
function(rk_windows_resource target description)
    if(NOT WIN32)
        return()
    endif()
    set(icon "")
    if(ARGC GREATER 2)
        get_filename_component(icon "${ARGV2}" ABSOLUTE)
        set(icon "IDI_ICON1 ICON \"${icon}\"")
    endif()
    string(REPLACE "." "," numbers "${PROJECT_VERSION}")
    configure_file("${PROJECT_SOURCE_DIR}/cmake/Version.rc.in" "${CMAKE_CURRENT_BINARY_DIR}/${target}.rc" @ONLY)
    target_sources(${target} PRIVATE "${CMAKE_CURRENT_BINARY_DIR}/${target}.rc")
endfunction()

# rk_public_headers(<target> <package> <header>...)
#
# Makes each header reachable as <package/Header.h>: from the build tree through a forwarding header,
# so that source folders keep their own layout, and after install as a flat copy. The install component
# is that of the folder, RK_INSTALL_COMPONENT.
function(rk_public_headers target package)
    set(include_root "${PROJECT_BINARY_DIR}/include")
    foreach(header IN LISTS ARGN)
        get_filename_component(name "${header}" NAME)
        get_filename_component(path "${header}" ABSOLUTE)
        configure_file("${PROJECT_SOURCE_DIR}/cmake/PublicHeader.h.in"
            "${include_root}/${package}/${name}" @ONLY)
        install(FILES "${path}" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/${package}" COMPONENT ${RK_INSTALL_COMPONENT})
        set_property(GLOBAL APPEND PROPERTY RK_PUBLIC_HEADERS "${package}/${name}")
    endforeach()
    target_include_directories(${target} PUBLIC
        "$<BUILD_INTERFACE:${include_root}>"
        "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>")
endfunction()

# rk_export_header(<target> <package> <PREFIX>)
#
# Generates <package/<package>Export.h> with <PREFIX>_EXPORT and installs it.
function(rk_export_header target package prefix)
    include(GenerateExportHeader)
    set(header "${PROJECT_BINARY_DIR}/include/${package}/${package}Export.h")
    generate_export_header(${target} BASE_NAME ${prefix} EXPORT_FILE_NAME "${header}")
    install(FILES "${header}" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/${package}" COMPONENT ${RK_INSTALL_COMPONENT})
endfunction()

# rk_add_platform_library(<name> HEADERS <header>... SOURCES <source>... LINK <target>...
#     [PRIVATE_LINK <target>...])
#
# One shared library of the package RkPlatform, with its generated export header. What is linked privately is no
# concern of whoever uses the package.
function(rk_add_platform_library name)
    cmake_parse_arguments(ARG "" "" "HEADERS;SOURCES;LINK;PRIVATE_LINK" ${ARGN})
    add_library(${name} SHARED ${ARG_SOURCES} ${ARG_HEADERS})
    add_library(RkPlatform::${name} ALIAS ${name})
    string(TOUPPER ${name} prefix)
    set_target_properties(${name} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
    target_compile_features(${name} PUBLIC cxx_std_17)
    target_link_libraries(${name} PUBLIC ${ARG_LINK} PRIVATE ${ARG_PRIVATE_LINK})
    rk_set_warnings(${name})
    rk_export_header(${name} ${name} ${prefix})
    rk_public_headers(${name} ${name} ${ARG_HEADERS})
    install(TARGETS ${name} EXPORT RkPlatformTargets COMPONENT RkPlatform)
endfunction()

# rk_wrap_forms(<variable> <form>...)
#
# As qt5_wrap_ui, without the search for slots by their names in every new form: all connections are
# made in the classes, and the city picker holds dozens of forms.
function(rk_wrap_forms variable)
    set(headers "")
    foreach(form IN LISTS ARGN)
        get_filename_component(name "${form}" NAME_WE)
        set(header "${CMAKE_CURRENT_BINARY_DIR}/ui_${name}.h")
        add_custom_command(OUTPUT "${header}"
            COMMAND Qt5::uic --no-autoconnection -o "${header}" "${CMAKE_CURRENT_SOURCE_DIR}/${form}"
            MAIN_DEPENDENCY "${form}" VERBATIM)
        set_source_files_properties("${header}" PROPERTIES SKIP_AUTOMOC ON)
        list(APPEND headers "${header}")
    endforeach()
    set(${variable} "${headers}" PARENT_SCOPE)
endfunction()
