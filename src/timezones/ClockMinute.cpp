// SPDX-License-Identifier: MIT
#include "ClockMinute.h"

#include <cmath>

namespace quorvane {

Instant startOfClockMinute(Instant instant) {
    constexpr double minute = 60;
    return {std::floor(instant.secondsSince1970 / minute) * minute};
}

} // namespace quorvane
