# SPDX-License-Identifier: MIT

# One test program per name, built from GoogleTest cases into build/tests.
#
#   quorvane_test(model SOURCES ATest.cpp LINKS quorvane::model)
function(quorvane_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINKS")
    add_executable(quorvane-test-${name} ${arg_SOURCES})
    set_target_properties(quorvane-test-${name} PROPERTIES
        RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
    target_link_libraries(quorvane-test-${name}
        PRIVATE ${arg_LINKS} quorvane_settings GTest::gmock GTest::gtest)
    add_test(NAME ${name} COMMAND quorvane-test-${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT 120)
endfunction()
