# SPDX-License-Identifier: MIT

# One test program per name, built from GoogleTest cases into build/tests. PRIVATE_HEADERS_OF names
# the libraries whose private headers the cases include.
#
#   quorvane_test(model SOURCES ATest.cpp LINKS quorvane::model PRIVATE_HEADERS_OF model)
function(quorvane_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINKS;PRIVATE_HEADERS_OF")
    add_executable(quorvane-test-${name} ${arg_SOURCES})
    set_target_properties(quorvane-test-${name} PROPERTIES
        RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
    target_link_libraries(quorvane-test-${name}
        PRIVATE ${arg_LINKS} quorvane_options GTest::gmock GTest::gtest)
    foreach(library IN LISTS arg_PRIVATE_HEADERS_OF)
        target_include_directories(quorvane-test-${name}
            PRIVATE $<TARGET_PROPERTY:quorvane_${library},SOURCE_DIR>)
    endforeach()
    add_test(NAME ${name} COMMAND quorvane-test-${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT 120)
endfunction()
