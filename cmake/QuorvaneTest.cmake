# SPDX-License-Identifier: MIT
include(QuorvanePrecompiled)

set(QUORVANE_TEST_SLOWNESS 1 CACHE STRING
    "How many times longer than usual a test may take, where sanitizers or counters slow it down")

# quorvane_time_limit(app-faults 180)
#
# Gives a test so many seconds on a build that nothing slows down.
function(quorvane_time_limit test seconds)
    math(EXPR limit "${seconds} * ${QUORVANE_TEST_SLOWNESS}")
    set_tests_properties(${test} PROPERTIES TIMEOUT ${limit})
endfunction()

# The compiler takes a third less time over a test that it need not optimise; what is tested is
# built as everywhere. A backtrace still names each line.
add_library(quorvane_test_options INTERFACE)
target_compile_options(quorvane_test_options INTERFACE $<$<CONFIG:RelWithDebInfo>:-O0;-g1>)
target_link_libraries(quorvane_test_options INTERFACE quorvane_options GTest::gmock GTest::gtest)

quorvane_precompiled_headers(test_core
    HEADERS ${quorvane_core_headers} <gmock/gmock.h> <gtest/gtest.h>
    LINKS quorvane_test_options Qt6::Core)
quorvane_precompiled_headers(test_widgets
    HEADERS ${quorvane_core_headers} ${quorvane_widgets_headers} <gmock/gmock.h> <gtest/gtest.h>
    LINKS quorvane_test_options Qt6::Widgets)

# quorvane_test_support(gui_test_main SOURCES a.cpp LINKS quorvane::controls)
#
# A library that several test programs share.
function(quorvane_test_support name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINKS;PRIVATE_LINKS")
    add_library(quorvane_${name} STATIC ${arg_SOURCES})
    add_library(quorvane::${name} ALIAS quorvane_${name})
    target_link_libraries(quorvane_${name}
        PUBLIC ${arg_LINKS}
        PRIVATE quorvane_test_options ${arg_PRIVATE_LINKS})
    quorvane_precompile(quorvane_${name} test LINKS ${arg_LINKS})
endfunction()

# One test program per name, built from GoogleTest cases into build/tests. PRIVATE_HEADERS_OF names
# the libraries whose private headers the cases include. MOC: the program has Q_OBJECT classes of
# its own.
#
#   quorvane_test(model SOURCES ATest.cpp LINKS quorvane::model PRIVATE_HEADERS_OF model)
function(quorvane_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "MOC" "" "SOURCES;LINKS;PRIVATE_HEADERS_OF")
    add_executable(quorvane-test-${name} ${arg_SOURCES})
    set_target_properties(quorvane-test-${name} PROPERTIES
        AUTOMOC ${arg_MOC}
        RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
    target_link_libraries(quorvane-test-${name} PRIVATE ${arg_LINKS} quorvane_test_options)
    quorvane_precompile(quorvane-test-${name} test LINKS ${arg_LINKS})
    foreach(library IN LISTS arg_PRIVATE_HEADERS_OF)
        target_include_directories(quorvane-test-${name}
            PRIVATE $<TARGET_PROPERTY:quorvane_${library},SOURCE_DIR>)
    endforeach()
    add_test(NAME ${name} COMMAND quorvane-test-${name})
    quorvane_time_limit(${name} 120)
endfunction()
