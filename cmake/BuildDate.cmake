# SPDX-License-Identifier: MIT

set(quorvane_changelog ${CMAKE_CURRENT_LIST_DIR}/../CHANGELOG.md)

# quorvane_build_date(RESULT)
#
# The day of the build, as YYYY-MM-DD: what whoever makes a package gives, else the day of the last
# release, so that the same sources always make the same program.
function(quorvane_build_date result)
    if(DEFINED ENV{SOURCE_DATE_EPOCH})
        string(TIMESTAMP day "%Y-%m-%d" UTC)
    else()
        file(STRINGS ${quorvane_changelog} releases REGEX "^## \\[[0-9.]+\\] - ")
        list(GET releases 0 newest)
        string(REGEX REPLACE "^.* - " "" day "${newest}")
    endif()
    set(${result} ${day} PARENT_SCOPE)
endfunction()
