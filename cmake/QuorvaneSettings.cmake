# SPDX-License-Identifier: MIT
# Language, warnings and tools shared by every target.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
# moc reads sources only: it need not wait for the libraries that they link, nor run after each.
set(CMAKE_AUTOGEN_ORIGIN_DEPENDS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})

find_program(QUORVANE_CCACHE ccache)
if(QUORVANE_CCACHE)
    # What it asks for to store what was compiled with precompiled headers; in its other modes it
    # would read them once more itself.
    set(CMAKE_CXX_COMPILER_LAUNCHER
        ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros CCACHE_DEPEND=1
        ${QUORVANE_CCACHE})
endif()

# A warning is an error only with CMAKE_COMPILE_WARNING_AS_ERROR, which the presets dev, asan and
# lint set: other compilers and libraries warn of more.
add_library(quorvane_options INTERFACE)
target_compile_options(quorvane_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion
    -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-qual -Wformat=2)
# Qt 6.4 is the oldest that builds this, and what 6.8 calls deprecated is not used. Releases from
# 6.5 on read QT_DISABLE_DEPRECATED_UP_TO, 6.4 the older name.
target_compile_definitions(quorvane_options INTERFACE
    QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_DISABLE_DEPRECATED_BEFORE=0x060400
    QT_DISABLE_DEPRECATED_UP_TO=0x060800
    U_SHOW_CPLUSPLUS_API=1 U_USING_ICU_NAMESPACE=0)
