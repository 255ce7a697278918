// SPDX-License-Identifier: MIT
#include "TypedDayPattern.h"

#include "DayRange.h"
#include "LocaleCalendar.h"
#include "PatternParts.h"

#include <algorithm>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

constexpr int yearsBefore = 80;
constexpr int century = 100;
constexpr int longestNumber = 2; ///< month letters: more of them stand for a name

bool isYear(const PatternPart& part) {
    return part.letter == u'y' || part.letter == u'u';
}

bool isMonth(const PatternPart& part) {
    return part.letter == u'M' || part.letter == u'L';
}

bool isEra(const PatternPart& part) {
    return part.letter == u'G';
}

bool isMonthName(const PatternPart& part) {
    return isMonth(part) && part.length > longestNumber;
}

bool isNumber(const PatternPart& part) {
    return part.letter == u'd' || isYear(part) || isMonth(part);
}

bool isKnown(const PatternPart& part) {
    return part.letter.isNull() || isNumber(part) || isEra(part);
}

bool isMark(const QString& comparable) {
    return comparable == u"/"_s || comparable == u"."_s || comparable == u"-"_s;
}

/// Commas and dots between words are as good as the space after them.
QString wordExpression(const QString& word) {
    const bool isPunctuation = word == u","_s || word == u"."_s || word == u"،"_s;
    return QRegularExpression::escape(word) + (isPunctuation ? u"?"_s : QString());
}

/// `marks` are those that may stand between two numbers; none if there are names.
QString separatorExpression(const QString& text, const QString& marks) {
    const auto comparable = comparableText(text);
    if (comparable.isEmpty())
        return u" ?"_s;
    if (!marks.isEmpty() && isMark(comparable))
        return u" ?["_s + marks + u"] ?"_s;
    QStringList words;
    for (const auto& word : comparable.split(u' '))
        words.append(wordExpression(word));
    return u" ?"_s + words.join(u" ?"_s) + u" ?"_s;
}

QString yearExpression(const std::vector<QString>& eras) {
    const auto era = anyOf(eras);
    return u"(?:%1 ?)?(?<year>[0-9]{4}|[0-9]{2})(?: ?%1)?"_s.arg(era);
}

QString monthExpression(const PatternPart& part, const NumbersByName& months) {
    return isMonthName(part) ? u"(?<name>"_s + anyOf(namesIn(months)) + u')'
                             : u"(?<month>1[0-3]|0?[1-9])"_s;
}

/// A year before month and day with hyphens is ISO 8601, whatever else the locale would make of it.
QString marksIn(const std::vector<PatternPart>& parts) {
    if (std::ranges::any_of(parts, isMonthName))
        return {};
    const auto first = std::ranges::find_if(parts, isNumber);
    return first != parts.end() && isYear(*first) ? u"/."_s : u"-/."_s;
}

QString expressionOf(
    const QString& pattern, const NumbersByName& months, const std::vector<QString>& eras) {
    const auto parts = patternParts(pattern);
    if (!std::ranges::all_of(parts, isKnown))
        return {};
    const auto marks = marksIn(parts);
    QString expression;
    for (const auto& part : parts) {
        if (isYear(part))
            expression += yearExpression(eras);
        else if (isMonth(part))
            expression += monthExpression(part, months);
        else if (part.letter == u'd')
            expression += u"(?<day>[12][0-9]|3[0-2]|0?[1-9])"_s;
        else if (part.letter.isNull() && &part == &parts.back())
            expression += u"(?:"_s + separatorExpression(part.text, marks) + u")?"_s;
        else if (part.letter.isNull())
            expression += separatorExpression(part.text, marks);
    }
    return u"^%1(?: ?%2)? ?$"_s.arg(expression, anyOf(eras));
}

/// The year of those two digits that is meant at `present`.
int fullYear(int digits, int present) {
    const int first = present - yearsBefore;
    return first + ((digits - first) % century + century) % century;
}

std::optional<CivilDay> dayAt(int year, int month, int day, icu::Calendar& calendar) {
    auto status = U_ZERO_ERROR;
    calendar.setLenient(false);
    calendar.set(UCAL_YEAR, year);
    calendar.set(UCAL_MONTH, month);
    calendar.set(UCAL_DATE, day);
    calendar.getTime(status);
    return U_SUCCESS(status) ? inTypedRange(dayOf(calendar)) : std::nullopt;
}

} // namespace

TypedDayPattern::TypedDayPattern(const QString& pattern, const icu::DateFormatSymbols& symbols)
    : m_months(monthNames(symbols)),
      m_expression(expressionOf(pattern, m_months, eraNames(symbols))) {
}

TypedDate
TypedDayPattern::read(const QString& comparable, CivilDay today, const UserLocale& locale) const {
    if (m_expression.pattern().isEmpty())
        return {};
    const auto match =
        m_expression.match(comparable, 0, QRegularExpression::PartialPreferCompleteMatch);
    if (match.hasPartialMatch())
        return {TypingState::Unfinished};
    const auto month = match.hasMatch() ? monthIn(match) : std::nullopt;
    if (!month)
        return {};
    const auto digits = match.captured(u"year"_s);
    const bool isShort = digits.size() < 4;
    const auto calendar = localeCalendar(today, locale);
    auto status = U_ZERO_ERROR;
    const int present = calendar->get(UCAL_YEAR, status);
    const int year = isShort ? fullYear(digits.toInt(), present) : digits.toInt();
    const auto day = dayAt(year, *month, match.captured(u"day"_s).toInt(), *calendar);
    const bool mayGrow = isShort && comparable.endsWith(digits);
    if (!day)
        return {mayGrow ? TypingState::Unfinished : TypingState::Refused};
    return {TypingState::Complete, day, {}, {}, mayGrow};
}

std::optional<int> TypedDayPattern::monthIn(const QRegularExpressionMatch& match) const {
    if (const auto number = match.captured(u"month"_s); !number.isEmpty())
        return number.toInt() - 1;
    // Dots and spaces may be missing in what was typed.
    const auto plain = [](QString name) {
        return name.remove(u'.').remove(u' ');
    };
    const auto typed = plain(match.captured(u"name"_s));
    for (const auto& [name, number] : m_months) {
        if (plain(name) == typed)
            return number;
    }
    return std::nullopt;
}

} // namespace quorvane
