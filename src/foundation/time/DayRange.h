// SPDX-License-Identifier: MIT
#pragma once

#include <time/CivilTime.h>

#include <optional>

namespace quorvane {

/// The day, if its year in the Gregorian calendar is one from 1 to 9999.
[[nodiscard]] inline std::optional<CivilDay> inTypedRange(CivilDay day) {
    using namespace std::chrono;
    constexpr CivilDay first = local_days(year(1) / January / 1);
    constexpr CivilDay last = local_days(year(9999) / December / 31);
    return day >= first && day <= last ? std::optional(day) : std::nullopt;
}

} // namespace quorvane
