// SPDX-License-Identifier: MIT
#pragma once

#include <time/CivilTime.h>
#include <time/UserLocale.h>

namespace quorvane {

/// So many months on (or back), in the locale's own calendar: the same day of the month, or the
/// month's last where it is shorter.
[[nodiscard]] CivilDay movedByMonths(CivilDay day, int months, const UserLocale& locale);

/// Likewise by years.
[[nodiscard]] CivilDay movedByYears(CivilDay day, int years, const UserLocale& locale);

[[nodiscard]] CivilDay startOfMonth(CivilDay day, const UserLocale& locale);

/// The first day of the week that holds the day; weeks begin where the locale's do.
[[nodiscard]] CivilDay startOfWeek(CivilDay day, const UserLocale& locale);

[[nodiscard]] CivilDay endOfWeek(CivilDay day, const UserLocale& locale);

} // namespace quorvane
