// SPDX-License-Identifier: MIT
#include "IcuText.h"

#include <time/DayPeriods.h>
#include <time/TypedText.h>

#include <QStringList>
#include <unicode/resbund.h>
#include <unicode/smpdtfmt.h>

#include <algorithm>
#include <array>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

constexpr int hoursInDay = 24;
constexpr int hoursOnDial = 12;

/// AM and PM in three widths, and the parts of the day in those that tell them apart (UTS #35).
constexpr std::array periodPatterns{u"a", u"aaaa", u"aaaaa", u"B", u"BBBB"};

QString key(QStringView word) {
    return comparableText(word).remove(u'.').remove(u' ');
}

QString wordAt(int hour, icu::SimpleDateFormat& format) {
    icu::UnicodeString text;
    return fromIcu(format.format(static_cast<double>(hour) * U_MILLIS_PER_HOUR, text));
}

} // namespace

DayPeriods::DayPeriods(const UserLocale& locale) {
    addWordsOf(locale);
    addAbbreviationsOf(locale);
    addHalves(u"am"_s, u"pm"_s);
    addHalves(u"a"_s, u"p"_s);
}

std::optional<int> DayPeriods::hourIn(QStringView word, int hour) const {
    const auto found = m_hours.find(key(word));
    if (found == m_hours.end() || hour < 0 || hour >= hoursInDay)
        return std::nullopt;
    const auto& hours = found->second;
    if (hour == 0 || hour > hoursOnDial)
        return hours[static_cast<std::size_t>(hour)] ? std::optional(hour) : std::nullopt;
    const int morning = hour % hoursOnDial;
    const int evening = morning + hoursOnDial;
    const bool canBeMorning = hours[static_cast<std::size_t>(morning)];
    if (canBeMorning == hours[static_cast<std::size_t>(evening)])
        return std::nullopt;
    return canBeMorning ? morning : evening;
}

QString DayPeriods::expression() const {
    QStringList words;
    for (const auto& [word, hours] : m_hours)
        words.append(looseExpression(word));
    // The first that matches is taken: none may be the beginning of a later one.
    std::ranges::sort(words, std::ranges::greater(), &QString::size);
    return u"(?:"_s + words.join(u'|') + u')';
}

void DayPeriods::addWordsOf(const UserLocale& locale) {
    for (const auto* pattern : periodPatterns) {
        auto status = U_ZERO_ERROR;
        icu::SimpleDateFormat format(pattern, locale.icuLocale(), status);
        if (U_FAILURE(status))
            return;
        format.setTimeZone(*icu::TimeZone::getGMT());
        for (int hour = 0; hour < hoursInDay; ++hour)
            m_hours[key(wordAt(hour, format))].set(static_cast<std::size_t>(hour));
    }
    m_hours.erase(QString());
}

/// ICU formats with the longer ones, where a locale has both.
void DayPeriods::addAbbreviationsOf(const UserLocale& locale) {
    auto status = U_ZERO_ERROR;
    icu::ResourceBundle bundle(nullptr, locale.icuLocale(), status);
    const auto words = bundle.getWithFallback("calendar", status)
                           .getWithFallback("gregorian", status)
                           .getWithFallback("AmPmMarkersAbbr", status);
    const auto morning = words.getStringEx(0, status);
    const auto evening = words.getStringEx(1, status);
    if (U_SUCCESS(status))
        addHalves(fromIcu(morning), fromIcu(evening));
}

/// Where the locale has such a word itself, that stands.
void DayPeriods::addHalves(const QString& morning, const QString& evening) {
    const Hours morningHours((1U << hoursOnDial) - 1);
    m_hours.try_emplace(key(morning), morningHours);
    m_hours.try_emplace(key(evening), ~morningHours);
}

} // namespace quorvane
