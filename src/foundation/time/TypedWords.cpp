// SPDX-License-Identifier: MIT
#include "TypedWords.h"

#include "DateNames.h"
#include "IcuText.h"

#include <time/CalendarMoves.h>

#include <unicode/reldatefmt.h>

#include <array>
#include <utility>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

constexpr int daysInWeek = 7;

struct Direction {
    UDateDirection direction;
    int number;
};

constexpr std::array directions{
    Direction{UDAT_DIRECTION_LAST_2, -2},
    Direction{UDAT_DIRECTION_LAST, -1},
    Direction{UDAT_DIRECTION_THIS, 0},
    Direction{UDAT_DIRECTION_NEXT, 1},
    Direction{UDAT_DIRECTION_NEXT_2, 2},
};

QString key(const QString& comparable) {
    return QString(comparable).remove(u'.').remove(u' ');
}

} // namespace

TypedWords::TypedWords(UserLocale locale) : m_locale(std::move(locale)) {
    addRelativeWords();
    addWeekdays();
    std::vector<QString> words;
    for (const auto& [word, meaning] : m_meanings)
        words.push_back(word);
    m_expression.setPattern(u'^' + anyOf(std::move(words)) + u'$');
}

TypedDate TypedWords::read(const QString& comparable, CivilDay today) const {
    const auto match =
        m_expression.match(comparable, 0, QRegularExpression::PartialPreferCompleteMatch);
    if (!match.hasMatch())
        return {match.hasPartialMatch() ? TypingState::Unfinished : TypingState::Refused};
    const auto found = m_meanings.find(key(comparable));
    if (found == m_meanings.end())
        return {};
    return {TypingState::Complete, dayOf(found->second, today)};
}

void TypedWords::addRelativeWords() {
    constexpr std::array units{
        std::pair(UDAT_ABSOLUTE_DAY, Unit::Day),
        std::pair(UDAT_ABSOLUTE_WEEK, Unit::Week),
        std::pair(UDAT_ABSOLUTE_MONTH, Unit::Month),
        std::pair(UDAT_ABSOLUTE_YEAR, Unit::Year)};
    auto status = U_ZERO_ERROR;
    const icu::RelativeDateTimeFormatter formatter(m_locale.icuLocale(), status);
    for (const auto& [icuUnit, unit] : units) {
        for (const auto& [direction, number] : directions) {
            auto unitStatus = status;
            icu::UnicodeString text;
            formatter.format(direction, icuUnit, text, unitStatus);
            const auto word = key(comparableText(fromIcu(text)));
            if (U_SUCCESS(unitStatus) && !word.isEmpty())
                m_meanings.try_emplace(word, Meaning{unit, number});
        }
    }
}

void TypedWords::addWeekdays() {
    auto status = U_ZERO_ERROR;
    const icu::DateFormatSymbols symbols(m_locale.icuLocale(), status);
    if (U_FAILURE(status))
        return;
    for (const auto& [name, number] : weekdayNames(symbols))
        m_meanings.try_emplace(key(name), Meaning{Unit::Weekday, number});
}

CivilDay TypedWords::dayOf(const Meaning& meaning, CivilDay today) const {
    using namespace std::chrono;
    switch (meaning.unit) {
    case Unit::Day:
        return today + days(meaning.number);
    case Unit::Week:
        return today + days(daysInWeek * meaning.number);
    case Unit::Month:
        return movedByMonths(today, meaning.number, m_locale);
    case Unit::Year:
        return movedByYears(today, meaning.number, m_locale);
    case Unit::Weekday:
        return today + (weekday(static_cast<unsigned>(meaning.number)) - weekday(today));
    }
    return today;
}

} // namespace quorvane
