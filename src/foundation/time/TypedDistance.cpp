// SPDX-License-Identifier: MIT
#include "TypedDistance.h"

#include "DayRange.h"

#include <time/CalendarMoves.h>

#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

constexpr int daysInWeek = 7;

CivilDay dayAt(CivilDay from, int number, const QString& unit, const UserLocale& locale) {
    using std::chrono::days;
    if (unit == u"w"_s)
        return from + days(daysInWeek * number);
    if (unit == u"m"_s)
        return movedByMonths(from, number, locale);
    if (unit == u"y"_s)
        return movedByYears(from, number, locale);
    return from + days(number);
}

} // namespace

// Seven digits of days lead out of the range of years, and none of the calendars is asked for more.
TypedDistance::TypedDistance(UserLocale locale)
    : m_locale(std::move(locale)),
      m_expression(u"^(?<sign>[+-]) ?(?<number>[0-9]{1,7}) ?(?<unit>[dwmy]?)$"_s) {
}

TypedDate TypedDistance::read(const QString& comparable, CivilDay from) const {
    const auto match =
        m_expression.match(comparable, 0, QRegularExpression::PartialPreferCompleteMatch);
    if (!match.hasMatch())
        return {match.hasPartialMatch() ? TypingState::Unfinished : TypingState::Refused};
    const auto unit = match.captured(u"unit"_s);
    const int size = match.captured(u"number"_s).toInt();
    const int number = match.captured(u"sign"_s) == u"-"_s ? -size : size;
    const auto day = inTypedRange(dayAt(from, number, unit, m_locale));
    if (!day)
        return {};
    return {TypingState::Complete, day, {}, {}, unit.isEmpty()};
}

} // namespace quorvane
