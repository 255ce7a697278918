# SPDX-License-Identifier: MIT

# Menus and panels without a reader of SVG find no icon in the folder of scalable ones.
option(QUORVANE_RASTER_ICONS "Install the icon as pictures in the usual sizes as well" ON)

# quorvane_raster_icons(a.svg share/icons/hicolor)
function(quorvane_raster_icons drawing theme)
    find_program(QUORVANE_RSVG_CONVERT rsvg-convert REQUIRED)
    cmake_path(GET drawing STEM LAST_ONLY name)
    foreach(size 16 22 24 32 48 64 128 256 512)
        set(picture ${CMAKE_CURRENT_BINARY_DIR}/icons/${size}/${name}.png)
        file(MAKE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/icons/${size})
        add_custom_command(OUTPUT ${picture}
            COMMAND ${QUORVANE_RSVG_CONVERT}
                --width ${size} --height ${size} --output ${picture} ${drawing}
            DEPENDS ${drawing}
            VERBATIM)
        list(APPEND pictures ${picture})
        install(FILES ${picture} DESTINATION ${theme}/${size}x${size}/apps)
    endforeach()
    add_custom_target(quorvane-icons ALL DEPENDS ${pictures})
endfunction()
