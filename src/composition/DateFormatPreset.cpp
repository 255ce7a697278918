// SPDX-License-Identifier: MIT
#include <composition/DateFormatPreset.h>
#include <composition/RawTexts.h>

namespace quorvane {

namespace {

constexpr RawTexts<DateFormatPreset, allDateFormatPresets.size()> rawTexts{{
    {DateFormatPreset::LongForm, u"Long"},
    {DateFormatPreset::MediumForm, u"Medium"},
    {DateFormatPreset::ShortForm, u"Short"},
    {DateFormatPreset::Iso8601, u"ISO 8601"},
    {DateFormatPreset::Rfc2822, u"RFC 2822"},
    {DateFormatPreset::DateOnly, u"Date Only"},
    {DateFormatPreset::TimeOnly, u"Time Only"},
    {DateFormatPreset::WithDayOfWeek, u"Day of Week"},
    {DateFormatPreset::UnixTimestamp, u"Unix Timestamp"},
    {DateFormatPreset::Custom, u"Custom\u2026"},
}};

} // namespace

QString rawValue(DateFormatPreset preset) {
    return textOf(rawTexts, preset);
}

std::optional<DateFormatPreset> dateFormatPreset(QStringView rawValue) {
    return caseOf(rawTexts, rawValue);
}

} // namespace quorvane
