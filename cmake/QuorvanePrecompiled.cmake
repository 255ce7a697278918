# SPDX-License-Identifier: MIT

# Most of a source's compile time goes into the same few headers of Qt, GoogleTest and the standard
# library. They are compiled once per set of flags, in two sizes: what a library on Qt Core may use,
# and what one on Qt Widgets may. The sources still include all that they use;
# CMAKE_DISABLE_PRECOMPILE_HEADERS (the preset "lint") builds without.

set(quorvane_core_headers
    <algorithm> <array> <chrono> <cmath> <cstdint> <functional> <limits> <map> <memory> <optional>
    <string> <utility> <vector>
    <QCoreApplication> <QDateTime> <QFile> <QLoggingCategory> <QObject> <QPointer> <QString>
    <QStringList> <QTimer>)
set(quorvane_widgets_headers
    <QAbstractScrollArea> <QApplication> <QBoxLayout> <QKeyEvent> <QLabel> <QPainter> <QScreen>
    <QStyleOption> <QWidget> <QWindow>)

# quorvane_precompiled_headers(product_widgets HEADERS <QWidget> LINKS Qt6::Widgets)
function(quorvane_precompiled_headers name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "HEADERS;LINKS")
    set(source ${CMAKE_CURRENT_BINARY_DIR}/quorvane_headers_${name}.cpp)
    file(CONFIGURE OUTPUT ${source} CONTENT "// Carries the headers.\n")
    add_library(quorvane_headers_${name} OBJECT ${source})
    target_link_libraries(quorvane_headers_${name} PRIVATE ${arg_LINKS})
    target_precompile_headers(quorvane_headers_${name} PRIVATE ${arg_HEADERS})
endfunction()

# quorvane_precompile(quorvane_model product LINKS quorvane::time Qt6::Core)
#
# Gives a target the headers, for "product" or "test", that its links let it use.
function(quorvane_precompile target flags)
    cmake_parse_arguments(PARSE_ARGV 2 arg "" "" "LINKS")
    set(size core)
    foreach(link IN LISTS arg_LINKS)
        if(link STREQUAL "Qt6::Widgets")
            set(size widgets)
        elseif(TARGET ${link})
            get_target_property(linked ${link} QUORVANE_HEADERS)
            if(linked STREQUAL "widgets")
                set(size widgets)
            endif()
        endif()
    endforeach()
    set_target_properties(${target} PROPERTIES QUORVANE_HEADERS ${size})
    target_precompile_headers(${target} REUSE_FROM quorvane_headers_${flags}_${size})
endfunction()
