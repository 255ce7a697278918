// SPDX-License-Identifier: MIT
#include "LocalePattern.h"

#include <unicode/dtptngen.h>

#include <array>
#include <map>
#include <memory>
#include <string>

namespace quorvane {

namespace {

struct Row {
    DateSkeleton skeleton;
    const char16_t* letters;
    UDateTimePatternMatchOptions options;
};

constexpr std::array rows{
    // Without this option ICU keeps the locale's own width of the hour.
    Row{DateSkeleton::HoursAndMinutes, u"jjmm", UDATPG_MATCH_HOUR_FIELD_LENGTH},
    Row{DateSkeleton::DayInWords, u"yMMMd", UDATPG_MATCH_NO_OPTIONS},
    Row{DateSkeleton::DayInNumbers, u"yMd", UDATPG_MATCH_NO_OPTIONS},
    Row{DateSkeleton::MonthAndYear, u"yMMMM", UDATPG_MATCH_NO_OPTIONS},
};

using Patterns = std::map<DateSkeleton, icu::UnicodeString>;

Patterns patternsOf(const UserLocale& locale) {
    auto status = U_ZERO_ERROR;
    const std::unique_ptr<icu::DateTimePatternGenerator> generator(
        icu::DateTimePatternGenerator::createInstance(locale.icuLocale(), status));
    Patterns patterns;
    for (const auto& row : rows) {
        if (U_FAILURE(status))
            return {};
        patterns[row.skeleton] = generator->getBestPattern(row.letters, row.options, status);
    }
    return U_SUCCESS(status) ? patterns : Patterns();
}

} // namespace

icu::UnicodeString localePattern(DateSkeleton skeleton, const UserLocale& locale) {
    static std::map<std::string, Patterns> known;
    const auto [found, isNew] = known.try_emplace(locale.icuLocale().getName());
    if (isNew)
        found->second = patternsOf(locale);
    return found->second[skeleton];
}

} // namespace quorvane
