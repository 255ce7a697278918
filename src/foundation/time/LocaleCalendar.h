// SPDX-License-Identifier: MIT
#pragma once

#include <time/CivilTime.h>
#include <time/UserLocale.h>

#include <unicode/calendar.h>

#include <memory>

namespace quorvane {

/// The locale's own calendar, set to that day. It counts in UTC: civil days have no zone.
[[nodiscard]] std::unique_ptr<icu::Calendar> localeCalendar(CivilDay day, const UserLocale& locale);

/// The day that such a calendar is set to.
[[nodiscard]] CivilDay dayOf(const icu::Calendar& calendar);

/// The start of the day in UTC.
[[nodiscard]] UDate icuDate(CivilDay day);

} // namespace quorvane
