// SPDX-License-Identifier: MIT
#include "IcuText.h"
#include "LocaleCalendar.h"
#include "LocalePattern.h"

#include <time/CalendarMoves.h>
#include <time/MonthGrid.h>

#include <unicode/smpdtfmt.h>

#include <algorithm>
#include <utility>

namespace quorvane {

namespace {

using std::chrono::days;

constexpr int daysInWeek = 7;
constexpr std::size_t longestMonth = 32; // of all calendars that ICU has

QString dayText(CivilDay day, icu::DateFormat& formatter) {
    formatter.setTimeZone(*icu::TimeZone::getGMT());
    icu::UnicodeString text;
    return fromIcu(formatter.format(icuDate(day), text));
}

QString dayText(CivilDay day, const icu::UnicodeString& pattern, const UserLocale& locale) {
    auto status = U_ZERO_ERROR;
    icu::SimpleDateFormat formatter(pattern, locale.icuLocale(), status);
    return U_SUCCESS(status) ? dayText(day, formatter) : QString();
}

QString titleOf(CivilDay firstDay, const UserLocale& locale) {
    const auto pattern = localePattern(DateSkeleton::MonthAndYear, locale);
    return pattern.isEmpty() ? QString() : dayText(firstDay, pattern, locale);
}

std::array<QString, daysInWeek> weekdayNames(CivilDay firstDay, const UserLocale& locale) {
    std::array<QString, daysInWeek> names;
    auto day = startOfWeek(firstDay, locale);
    for (auto& name : names)
        name = dayText(std::exchange(day, day + days(1)), u"ccccc", locale);
    return names;
}

/// Counted day by day, so that the month in which a calendar was reformed has just its own.
std::vector<CivilDay> daysOfMonth(CivilDay firstDay, const UserLocale& locale) {
    std::vector<CivilDay> result{firstDay};
    auto status = U_ZERO_ERROR;
    const auto calendar = localeCalendar(firstDay, locale);
    const auto month = calendar->get(UCAL_MONTH, status);
    while (U_SUCCESS(status) && result.size() < longestMonth) {
        const auto next = result.back() + days(1);
        calendar->setTime(icuDate(next), status);
        if (calendar->get(UCAL_MONTH, status) != month)
            break;
        result.push_back(next);
    }
    return result;
}

std::vector<MonthGridDay> gridDays(CivilDay firstDay, const UserLocale& locale) {
    auto status = U_ZERO_ERROR;
    icu::SimpleDateFormat numbers(u"d", locale.icuLocale(), status);
    const std::unique_ptr<icu::DateFormat> words(
        icu::DateFormat::createDateInstance(icu::DateFormat::kFull, locale.icuLocale()));
    std::vector<MonthGridDay> result;
    for (const auto day : daysOfMonth(firstDay, locale))
        result.push_back({day, dayText(day, numbers), dayText(day, *words)});
    return result;
}

} // namespace

int MonthGrid::columnOf(std::size_t dayIndex) const {
    return (firstColumn + static_cast<int>(dayIndex)) % daysInWeek;
}

int MonthGrid::rowOf(std::size_t dayIndex) const {
    return (firstColumn + static_cast<int>(dayIndex)) / daysInWeek;
}

int MonthGrid::weekCount() const {
    return days.empty() ? 0 : rowOf(days.size() - 1) + 1;
}

bool MonthGrid::contains(CivilDay day) const {
    return std::ranges::find(days, day, &MonthGridDay::day) != days.end();
}

MonthGrid monthGrid(CivilDay day, const UserLocale& locale) {
    const auto firstDay = startOfMonth(day, locale);
    return {
        titleOf(firstDay, locale),
        weekdayNames(firstDay, locale),
        static_cast<int>((firstDay - startOfWeek(firstDay, locale)).count()),
        gridDays(firstDay, locale)};
}

} // namespace quorvane
