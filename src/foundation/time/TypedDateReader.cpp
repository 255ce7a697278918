// SPDX-License-Identifier: MIT
#include "IcuText.h"
#include "LocalePattern.h"
#include "TypedDayPattern.h"
#include "TypedDistance.h"
#include "TypedIsoDateReader.h"
#include "TypedWords.h"

#include <time/TypedDateReader.h>
#include <time/TypedTime.h>

#include <unicode/smpdtfmt.h>

#include <array>
#include <vector>

namespace quorvane {

namespace {

/// Longer texts are no dates, and would take their time to be refused.
constexpr qsizetype longestText = 80;

constexpr std::array styles{
    icu::DateFormat::kShort, icu::DateFormat::kMedium, icu::DateFormat::kLong};

/// With the full year, which many a short date lacks; in numbers, and as the date's chip has it.
constexpr std::array skeletons{DateSkeleton::DayInNumbers, DateSkeleton::DayInWords};

void addPattern(std::vector<TypedDayPattern>& patterns, const icu::SimpleDateFormat& format) {
    icu::UnicodeString pattern;
    if (const auto* symbols = format.getDateFormatSymbols())
        patterns.emplace_back(fromIcu(format.toPattern(pattern)), *symbols);
}

std::vector<TypedDayPattern> dayPatterns(const UserLocale& locale) {
    std::vector<TypedDayPattern> patterns;
    for (const auto style : styles) {
        const std::unique_ptr<icu::DateFormat> format(
            icu::DateFormat::createDateInstance(style, locale.icuLocale()));
        if (const auto* simple = dynamic_cast<icu::SimpleDateFormat*>(format.get()))
            addPattern(patterns, *simple);
    }
    for (const auto skeleton : skeletons) {
        const auto pattern = localePattern(skeleton, locale);
        auto status = U_ZERO_ERROR;
        const icu::SimpleDateFormat format(pattern, locale.icuLocale(), status);
        if (U_SUCCESS(status) && !pattern.isEmpty())
            addPattern(patterns, format);
    }
    return patterns;
}

/// What comes after the day decides; an hour with PM is a time, too.
TypedDate withTime(TypedDate date, const TypedTime& time) {
    date.state = time.state;
    if (time.minute)
        date.timeOfDay = std::chrono::hours(time.hour) + std::chrono::minutes(*time.minute);
    else if (time.state == TypingState::Complete)
        date.timeOfDay = std::chrono::hours(time.hour);
    return date;
}

bool isBetter(const TypedDate& candidate, const TypedDate& best) {
    return candidate.state > best.state;
}

} // namespace

struct TypedDateReader::Forms {
    explicit Forms(const UserLocale& userLocale)
        : locale(userLocale),
          words(userLocale),
          distance(userLocale),
          patterns(dayPatterns(userLocale)),
          time(userLocale) {}

    UserLocale locale;
    TypedIsoDateReader iso;
    TypedWords words;
    TypedDistance distance;
    std::vector<TypedDayPattern> patterns;
    TypedTimeReader time;
};

TypedDateReader::TypedDateReader(const UserLocale& locale)
    : m_forms(std::make_unique<Forms>(locale)) {
}

TypedDateReader::~TypedDateReader() = default;

TypedDate TypedDateReader::read(const QString& text, CivilDay fieldDay, CivilDay today) const {
    if (text.size() > longestText)
        return {};
    const auto comparable = comparableText(text);
    if (comparable.isEmpty())
        return {TypingState::Unfinished};
    auto best = readDay(comparable, fieldDay, today);
    if (best.state == TypingState::Complete)
        return best;
    if (const auto date = readDayAndTime(comparable, fieldDay, today); isBetter(date, best))
        best = date;
    return best;
}

TypedDate
TypedDateReader::readDay(const QString& comparable, CivilDay fieldDay, CivilDay today) const {
    auto best = m_forms->iso.read(comparable);
    const auto consider = [&best](const TypedDate& date) {
        if (isBetter(date, best))
            best = date;
    };
    consider(m_forms->distance.read(comparable, fieldDay));
    consider(m_forms->words.read(comparable, today));
    for (const auto& pattern : m_forms->patterns)
        consider(pattern.read(comparable, today, m_forms->locale));
    return best;
}

/// A day, a space or comma, and a time.
TypedDate TypedDateReader::readDayAndTime(
    const QString& comparable, CivilDay fieldDay, CivilDay today) const {
    TypedDate best;
    for (auto space = comparable.indexOf(u' '); space >= 0;
         space = comparable.indexOf(u' ', space + 1)) {
        auto left = comparable.left(space);
        if (left.endsWith(u','))
            left.chop(1);
        auto date = readDay(left, fieldDay, today);
        const auto time = m_forms->time.read(QStringView(comparable).mid(space + 1));
        if (date.state == TypingState::Complete && !date.timeOfDay) {
            date = withTime(date, time);
            if (isBetter(date, best))
                best = date;
        }
    }
    return best;
}

} // namespace quorvane
