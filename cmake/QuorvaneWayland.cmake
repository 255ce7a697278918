# SPDX-License-Identifier: MIT
pkg_check_modules(QUORVANE_WAYLAND_CLIENT REQUIRED IMPORTED_TARGET GLOBAL wayland-client>=1.20)
pkg_get_variable(QUORVANE_WAYLAND_SCANNER wayland-scanner wayland_scanner)

# quorvane_scan_wayland(client-header a.xml a-client.h)
#
# One run of the scanner; the modes are in its manual.
function(quorvane_scan_wayland mode description output)
    add_custom_command(
        OUTPUT ${output}
        COMMAND ${QUORVANE_WAYLAND_SCANNER} ${mode} ${description} ${output}
        DEPENDS ${description}
        VERBATIM)
endfunction()

# A library of protocols: for each description NAME.xml the header NAME-client.h, and what both
# sides of a connection need to know of its messages.
#
#   quorvane_wayland_protocols(wayland_protocols a.xml b.xml)
function(quorvane_wayland_protocols name)
    set(made)
    foreach(description IN LISTS ARGN)
        cmake_path(ABSOLUTE_PATH description)
        cmake_path(GET description STEM protocol)
        set(base ${CMAKE_CURRENT_BINARY_DIR}/${protocol})
        quorvane_scan_wayland(client-header ${description} ${base}-client.h)
        quorvane_scan_wayland(private-code ${description} ${base}.c)
        list(APPEND made ${base}-client.h ${base}.c)
    endforeach()
    add_library(quorvane_${name} STATIC ${made})
    add_library(quorvane::${name} ALIAS quorvane_${name})
    # Made, not written: none of our warnings.
    target_include_directories(quorvane_${name} SYSTEM PUBLIC ${CMAKE_CURRENT_BINARY_DIR})
    target_link_libraries(quorvane_${name} PUBLIC PkgConfig::QUORVANE_WAYLAND_CLIENT)
endfunction()
