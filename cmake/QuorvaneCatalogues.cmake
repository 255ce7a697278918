# SPDX-License-Identifier: MIT
# The translations of the interface. Sources and catalogues meet in two tools of Qt's Linguist:
# lupdate writes the texts of the sources into each catalogue, when ./dev translate asks for it, and
# lrelease makes of a catalogue what the program reads.

set(quorvane_qt_tools ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS})
find_program(QUORVANE_LRELEASE lrelease HINTS ${quorvane_qt_tools} REQUIRED)
find_program(QUORVANE_LUPDATE lupdate HINTS ${quorvane_qt_tools} REQUIRED)

# quorvane_catalogues(quorvane_language)
#
# Puts each catalogue of resources/translations into the target's resources, as
# ":/translations/quorvane_LANGUAGE.qm".
function(quorvane_catalogues target)
    set(catalogues ${PROJECT_SOURCE_DIR}/resources/translations)
    set(made ${CMAKE_CURRENT_BINARY_DIR}/translations)
    file(MAKE_DIRECTORY ${made})
    file(GLOB sources CONFIGURE_DEPENDS ${catalogues}/quorvane_*.ts)
    set(results "")
    # Without line numbers: not every change of the sources is one of their texts.
    add_custom_target(translate
        COMMAND ${QUORVANE_LUPDATE} -locations none -no-obsolete ${PROJECT_SOURCE_DIR}/src
            -ts ${sources}
        VERBATIM)
    foreach(source IN LISTS sources)
        cmake_path(GET source STEM name)
        add_custom_command(
            OUTPUT ${made}/${name}.qm
            COMMAND ${QUORVANE_LRELEASE} -silent ${source} -qm ${made}/${name}.qm
            DEPENDS ${source}
            VERBATIM)
        list(APPEND results ${made}/${name}.qm)
    endforeach()
    qt_add_resources(${target} catalogues PREFIX /translations BASE ${made} FILES ${results})
endfunction()
