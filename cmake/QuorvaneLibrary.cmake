# SPDX-License-Identifier: MIT
include(QuorvanePrecompiled)

quorvane_precompiled_headers(product_core
    HEADERS ${quorvane_core_headers}
    LINKS quorvane_options Qt6::Core)
quorvane_precompiled_headers(product_widgets
    HEADERS ${quorvane_core_headers} ${quorvane_widgets_headers}
    LINKS quorvane_options Qt6::Widgets)

# One library per folder. What others may include stands in include/NAME, private headers beside
# their sources; a library sees nothing but what it links, so that an include against the direction
# of the layers does not build.
#
#   quorvane_library(model SOURCES a.cpp b.cpp LINKS time hotkey)
#
# LINKS are PUBLIC because headers include each other's. MOC: the library has Q_OBJECT classes; the
# others build without a run of moc.
function(quorvane_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "MOC" "" "SOURCES;LINKS;PRIVATE_LINKS")
    # Listed as sources for their moc output.
    file(GLOB headers CONFIGURE_DEPENDS *.h include/${name}/*.h)
    add_library(quorvane_${name} STATIC ${arg_SOURCES} ${headers})
    add_library(quorvane::${name} ALIAS quorvane_${name})
    target_include_directories(quorvane_${name} PUBLIC include)
    target_link_libraries(quorvane_${name}
        PUBLIC ${arg_LINKS}
        PRIVATE quorvane_options ${arg_PRIVATE_LINKS})
    quorvane_precompile(quorvane_${name} product LINKS ${arg_LINKS})
    if(NOT arg_MOC)
        return()
    endif()
    # moc runs again when a header comes or goes, whatever that header's time stamp.
    set(header_list ${CMAKE_CURRENT_BINARY_DIR}/quorvane_${name}_headers.txt)
    file(CONFIGURE OUTPUT ${header_list} CONTENT "${headers}\n")
    set_target_properties(quorvane_${name} PROPERTIES
        AUTOMOC ON
        AUTOGEN_TARGET_DEPENDS ${header_list})
endfunction()

# quorvane_program(quorvane-gallery SOURCES main.cpp LINKS quorvane::gallery)
function(quorvane_program name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINKS")
    add_executable(${name} ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE ${arg_LINKS} quorvane_options)
    quorvane_precompile(${name} product LINKS ${arg_LINKS})
endfunction()
