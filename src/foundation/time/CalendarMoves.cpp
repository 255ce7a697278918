// SPDX-License-Identifier: MIT
#include "LocaleCalendar.h"

#include <time/CalendarMoves.h>

namespace quorvane {

namespace {

using std::chrono::days;

/// How many days after the start of its week.
days daysIntoWeek(CivilDay day, const UserLocale& locale) {
    auto status = U_ZERO_ERROR;
    const auto first = localeCalendar(day, locale)->getFirstDayOfWeek(status);
    // ICU counts weekdays from Sunday as 1.
    return std::chrono::weekday(day) - std::chrono::weekday(static_cast<unsigned>(first - 1));
}

CivilDay movedBy(CivilDay day, UCalendarDateFields field, int amount, const UserLocale& locale) {
    auto status = U_ZERO_ERROR;
    const auto calendar = localeCalendar(day, locale);
    calendar->add(field, amount, status);
    return U_SUCCESS(status) ? dayOf(*calendar) : day;
}

} // namespace

CivilDay movedByMonths(CivilDay day, int months, const UserLocale& locale) {
    return movedBy(day, UCAL_MONTH, months, locale);
}

CivilDay movedByYears(CivilDay day, int years, const UserLocale& locale) {
    return movedBy(day, UCAL_YEAR, years, locale);
}

CivilDay startOfMonth(CivilDay day, const UserLocale& locale) {
    const auto calendar = localeCalendar(day, locale);
    calendar->set(UCAL_DAY_OF_MONTH, 1);
    return dayOf(*calendar);
}

CivilDay startOfWeek(CivilDay day, const UserLocale& locale) {
    return day - daysIntoWeek(day, locale);
}

CivilDay endOfWeek(CivilDay day, const UserLocale& locale) {
    return startOfWeek(day, locale) + days(6);
}

} // namespace quorvane
