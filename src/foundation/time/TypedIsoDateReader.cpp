// SPDX-License-Identifier: MIT
#include "TypedIsoDateReader.h"

namespace quorvane {

using namespace Qt::StringLiterals;
using namespace std::chrono;

namespace {

constexpr auto dateExpression =
    "(?:(?<year>[0-9]{4})(?<dash>-?)(?:(?<month>0[1-9]|1[0-2])\\k<dash>"
    "(?<day>0[1-9]|[12][0-9]|3[01])|w(?<week>0[1-9]|[1-4][0-9]|5[0-3])\\k<dash>(?<weekday>[1-7])))"_L1;

constexpr auto timeExpression = "[t ](?<hour>[01][0-9]|2[0-3])(?<colon>:?)(?<minute>[0-5][0-9])"
                                "(?:\\k<colon>(?<second>[0-5][0-9])(?:[.,][0-9]{1,9})?)?"_L1;

constexpr auto offsetExpression =
    "(?:z|(?<sign>[+-])(?<offsetHour>[01][0-9]|2[0-3])(?::?(?<offsetMinute>[0-5][0-9]))?)"_L1;

int number(const QRegularExpressionMatch& match, const QString& name) {
    return match.captured(name).toInt();
}

bool has(const QRegularExpressionMatch& match, const QString& name) {
    return !match.captured(name).isEmpty();
}

/// ISO 8601: the first week of a year is the one with its first Thursday, and begins on Monday.
std::optional<CivilDay> dayOfWeek(year inYear, int week, int weekday) {
    const local_days january4(inYear / January / 4);
    const auto firstMonday = january4 - (std::chrono::weekday(january4) - Monday);
    const auto monday = firstMonday + weeks(week - 1);
    // A week is of the year of its Thursday.
    if (year_month_day(monday + days(3)).year() != inYear)
        return std::nullopt;
    return monday + days(weekday - 1);
}

std::optional<CivilDay> dayIn(const QRegularExpressionMatch& match) {
    const year inYear(number(match, u"year"_s));
    if (inYear == year(0))
        return std::nullopt;
    if (has(match, u"week"_s))
        return dayOfWeek(inYear, number(match, u"week"_s), number(match, u"weekday"_s));
    const auto date = inYear / number(match, u"month"_s) / number(match, u"day"_s);
    return date.ok() ? std::optional(CivilDay(local_days(date))) : std::nullopt;
}

seconds timeIn(const QRegularExpressionMatch& match) {
    return hours(number(match, u"hour"_s)) + minutes(number(match, u"minute"_s)) +
           seconds(number(match, u"second"_s));
}

seconds offsetIn(const QRegularExpressionMatch& match) {
    const auto offset =
        hours(number(match, u"offsetHour"_s)) + minutes(number(match, u"offsetMinute"_s));
    return match.captured(u"sign"_s) == u"-"_s ? -offset : offset;
}

} // namespace

TypedIsoDateReader::TypedIsoDateReader()
    : m_expression(
          u"^%1(?:%2(?<offset>%3)?)?$"_s.arg(dateExpression, timeExpression, offsetExpression)) {
}

TypedDate TypedIsoDateReader::read(const QString& comparable) const {
    const auto match =
        m_expression.match(comparable, 0, QRegularExpression::PartialPreferCompleteMatch);
    if (match.hasPartialMatch())
        return {TypingState::Unfinished};
    const auto day = match.hasMatch() ? dayIn(match) : std::nullopt;
    if (!day)
        return {};
    TypedDate date{TypingState::Complete, day};
    if (has(match, u"hour"_s))
        date.timeOfDay = timeIn(match);
    if (has(match, u"offset"_s))
        date.offset = offsetIn(match);
    return date;
}

} // namespace quorvane
