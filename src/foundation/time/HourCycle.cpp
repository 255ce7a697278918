// SPDX-License-Identifier: MIT
#include "IcuText.h"
#include "PatternParts.h"

#include <time/HourCycle.h>

#include <unicode/smpdtfmt.h>

#include <algorithm>
#include <memory>

namespace quorvane {

namespace {

QString shortTimePattern(const UserLocale& locale) {
    const std::unique_ptr<icu::DateFormat> format(
        icu::DateFormat::createTimeInstance(icu::DateFormat::kShort, locale.icuLocale()));
    icu::UnicodeString pattern;
    if (const auto* simple = dynamic_cast<icu::SimpleDateFormat*>(format.get()))
        simple->toPattern(pattern);
    return fromIcu(pattern);
}

/// AM and PM, with noon and midnight, or the parts of the day (UTS #35).
bool isDayPeriod(const PatternPart& part) {
    return part.letter == u'a' || part.letter == u'b' || part.letter == u'B';
}

} // namespace

HourCycle hourCycle(const UserLocale& locale) {
    return std::ranges::any_of(patternParts(shortTimePattern(locale)), isDayPeriod)
               ? HourCycle::Twelve
               : HourCycle::TwentyFour;
}

} // namespace quorvane
