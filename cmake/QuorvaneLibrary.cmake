# SPDX-License-Identifier: MIT

# One library per folder: its headers live in its own include directory, and it sees nothing but
# what it links, so that an include against the direction of the house does not build.
#
#   quorvane_library(model SOURCES a.cpp b.cpp HEADERS a.h LINKS foundation hotkey)
#
# Headers are listed for their moc output; LINKS are PUBLIC because headers include each other's.
function(quorvane_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;HEADERS;LINKS;PRIVATE_LINKS")
    list(TRANSFORM arg_HEADERS PREPEND include/${name}/)
    add_library(quorvane_${name} STATIC ${arg_SOURCES} ${arg_HEADERS})
    add_library(quorvane::${name} ALIAS quorvane_${name})
    target_include_directories(quorvane_${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR}/include)
    target_link_libraries(quorvane_${name}
        PUBLIC ${arg_LINKS}
        PRIVATE quorvane_settings ${arg_PRIVATE_LINKS})
endfunction()
