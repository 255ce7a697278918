# SPDX-License-Identifier: MIT

# One library per folder. What others may include stands in include/NAME, private headers beside
# their sources; a library sees nothing but what it links, so that an include against the direction
# of the layers does not build.
#
#   quorvane_library(model SOURCES a.cpp b.cpp LINKS time hotkey)
#
# LINKS are PUBLIC because headers include each other's.
function(quorvane_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINKS;PRIVATE_LINKS")
    # Listed as sources for their moc output.
    file(GLOB headers CONFIGURE_DEPENDS *.h include/${name}/*.h)
    add_library(quorvane_${name} STATIC ${arg_SOURCES} ${headers})
    add_library(quorvane::${name} ALIAS quorvane_${name})
    target_include_directories(quorvane_${name} PUBLIC include)
    target_link_libraries(quorvane_${name}
        PUBLIC ${arg_LINKS}
        PRIVATE quorvane_options ${arg_PRIVATE_LINKS})
endfunction()
