// SPDX-License-Identifier: MIT
#include "LocaleCalendar.h"

#include <cmath>

namespace quorvane {

std::unique_ptr<icu::Calendar> localeCalendar(CivilDay day, const UserLocale& locale) {
    auto status = U_ZERO_ERROR;
    std::unique_ptr<icu::Calendar> calendar(
        icu::Calendar::createInstance(*icu::TimeZone::getGMT(), locale.icuLocale(), status));
    calendar->setTime(icuDate(day), status);
    return calendar;
}

CivilDay dayOf(const icu::Calendar& calendar) {
    auto status = U_ZERO_ERROR;
    const double days = std::floor(calendar.getTime(status) / U_MILLIS_PER_DAY);
    return CivilDay(std::chrono::days(static_cast<std::chrono::days::rep>(days)));
}

UDate icuDate(CivilDay day) {
    return static_cast<double>(day.time_since_epoch().count()) * U_MILLIS_PER_DAY;
}

} // namespace quorvane
