// SPDX-License-Identifier: MIT
#include "ZoneTextFormat.h"

#include "DatabaseTimeZone.h"

namespace quorvane {

namespace {

/// The style that gives the offset where `style` would give a name.
UTimeZoneFormatStyle offsetStyle(UTimeZoneFormatStyle style) {
    switch (style) {
    case UTZFMT_STYLE_GENERIC_SHORT:
    case UTZFMT_STYLE_SPECIFIC_SHORT:
        return UTZFMT_STYLE_LOCALIZED_GMT_SHORT;
    case UTZFMT_STYLE_GENERIC_LONG:
    case UTZFMT_STYLE_SPECIFIC_LONG:
        return UTZFMT_STYLE_LOCALIZED_GMT;
    default:
        return style;
    }
}

bool hasNameAt(const icu::TimeZone& zone, UDate date) {
    const auto* database = dynamic_cast<const DatabaseTimeZone*>(&zone);
    return database == nullptr || database->hasNameAt(date);
}

} // namespace

std::unique_ptr<icu::TimeZoneFormat> ZoneTextFormat::make(const UserLocale& locale) {
    auto status = U_ZERO_ERROR;
    const std::unique_ptr<icu::TimeZoneFormat> format(
        icu::TimeZoneFormat::createInstance(locale.icuLocale(), status));
    return U_SUCCESS(status) ? std::unique_ptr<icu::TimeZoneFormat>(new ZoneTextFormat(*format))
                             : nullptr;
}

icu::UnicodeString& ZoneTextFormat::format(
    UTimeZoneFormatStyle style,
    const icu::TimeZone& zone,
    UDate date,
    icu::UnicodeString& text,
    UTimeZoneFormatTimeType* timeType) const {
    const auto truthful = hasNameAt(zone, date) ? style : offsetStyle(style);
    return icu::TimeZoneFormat::format(truthful, zone, date, text, timeType);
}

ZoneTextFormat* ZoneTextFormat::clone() const {
    return new ZoneTextFormat(*this);
}

UClassID ZoneTextFormat::getDynamicClassID() const {
    static const char classId = 0;
    return const_cast<char*>(&classId);
}

} // namespace quorvane
