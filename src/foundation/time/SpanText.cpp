// SPDX-License-Identifier: MIT
#include "IcuText.h"

#include <time/SpanText.h>

#include <unicode/measfmt.h>
#include <unicode/measunit.h>
#include <unicode/measure.h>
#include <unicode/numberformatter.h>

#include <vector>

namespace quorvane {

namespace {

icu::Measure measure(std::int64_t number, icu::MeasureUnit* unit) {
    auto status = U_ZERO_ERROR;
    return {icu::Formattable(number), unit, status};
}

/// At least one.
std::vector<icu::Measure> measures(const SpanParts& span) {
    auto status = U_ZERO_ERROR;
    std::vector<icu::Measure> result;
    if (span.days != 0)
        result.push_back(measure(span.days, icu::MeasureUnit::createDay(status)));
    if (span.hours != 0)
        result.push_back(measure(span.hours, icu::MeasureUnit::createHour(status)));
    if (span.minutes != 0 || result.empty())
        result.push_back(measure(span.minutes, icu::MeasureUnit::createMinute(status)));
    return result;
}

} // namespace

QString spanWords(const SpanParts& span, const UserLocale& locale) {
    auto status = U_ZERO_ERROR;
    const icu::MeasureFormat format(locale.icuLocale(), UMEASFMT_WIDTH_WIDE, status);
    const auto parts = measures(span);
    icu::FieldPosition nowhere;
    icu::UnicodeString text;
    format.formatMeasures(parts.data(), static_cast<int32_t>(parts.size()), text, nowhere, status);
    return U_SUCCESS(status) ? fromIcu(text) : QString();
}

QString wholeNumberText(std::int64_t number, const UserLocale& locale) {
    auto status = U_ZERO_ERROR;
    return fromIcu(icu::number::NumberFormatter::withLocale(locale.icuLocale())
                       .formatInt(number, status)
                       .toString(status));
}

} // namespace quorvane
