// SPDX-License-Identifier: MIT
#pragma once

#include <time/UserLocale.h>

#include <unicode/unistr.h>

namespace quorvane {

/// What a locale has a pattern of its own for.
enum class DateSkeleton {
    HoursAndMinutes, ///< by the locale's clock, in its own width of the hour
    DayInWords,      ///< year, short month and day
    DayInNumbers,    ///< year, month and day
    MonthAndYear,    ///< with the whole name of the month
};

/// How the locale writes it; empty if ICU cannot tell. The generator of patterns costs more to make
/// than anything else about a date, so a locale's is asked once, for all of them. For one thread.
[[nodiscard]] icu::UnicodeString localePattern(DateSkeleton skeleton, const UserLocale& locale);

} // namespace quorvane
