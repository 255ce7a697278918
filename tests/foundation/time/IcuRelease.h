// SPDX-License-Identifier: MIT
#pragma once

#include <unicode/uvernum.h>

#include <iterator>
#include <map>

namespace quorvane {

/// What this release of ICU has to give, where its data differ from another's: of the values by
/// the release that brought them, the newest that it has. The first is of the oldest release that
/// Quorvane builds with, 72.
template <typename Value>
Value byIcuRelease(const std::map<int, Value>& values) {
    return std::prev(values.upper_bound(U_ICU_VERSION_MAJOR_NUM))->second;
}

} // namespace quorvane
