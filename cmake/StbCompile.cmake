# SPDX-License-Identifier: MIT
# Compiler settings that every target of this project shares.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_SCAN_FOR_MODULES OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
# qt_standard_project_setup() gives installed plugins an rpath into nowhere; packages want none.
set(CMAKE_SKIP_INSTALL_RPATH ON)

option(STBUI_FORCE_ASSERTS "Keep Qt's assertions whatever the build type" OFF)
set(STBUI_SANITIZE "" CACHE STRING "Sanitizers to build with, for example address,undefined")

find_program(STBUI_CCACHE ccache)
if(STBUI_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${STBUI_CCACHE})
endif()

add_compile_options(
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align
    -Wdouble-promotion)
if(STBUI_WARNINGS_AS_ERRORS)
    add_compile_options(-Werror)
endif()
add_compile_definitions(
    QT_NO_FOREACH QT_NO_URL_CAST_FROM_STRING QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)
if(STBUI_FORCE_ASSERTS)
    add_compile_definitions(QT_FORCE_ASSERTS)
endif()
if(STBUI_SANITIZE)
    # Qt does not export the type information of its private classes, which the vptr check would need.
    add_compile_options(-fsanitize=${STBUI_SANITIZE} -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${STBUI_SANITIZE})
    if(STBUI_SANITIZE MATCHES undefined)
        add_compile_options(-fno-sanitize=vptr -fno-sanitize-recover=undefined)
    endif()
endif()
