// SPDX-License-Identifier: MIT
#pragma once

#include <time/UserLocale.h>

namespace quorvane {

/// Whether hours are counted from 1 to 12 twice a day, or from 0 to 23.
enum class HourCycle { Twelve, TwentyFour };

/// That of the locale's short time.
[[nodiscard]] HourCycle hourCycle(const UserLocale& locale);

} // namespace quorvane
