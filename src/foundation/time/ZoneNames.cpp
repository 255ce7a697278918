// SPDX-License-Identifier: MIT
#include "DatabaseTimeZone.h"
#include "IcuText.h"
#include "ZoneTextFormat.h"

#include <time/IcuTimeZone.h>
#include <time/ZoneNames.h>

namespace quorvane {

ZoneNames::ZoneNames(Instant instant, const UserLocale& locale)
    : m_instant(instant),
      m_format(ZoneTextFormat::make(locale)) {
}

std::optional<QString> ZoneNames::abbreviation(const TimeZone& zone) const {
    return abbreviation(*icuTimeZone(zone));
}

std::optional<QString> ZoneNames::abbreviation(const icu::TimeZone& zone) const {
    return name(UTZFMT_STYLE_SPECIFIC_SHORT, zone);
}

std::optional<QString> ZoneNames::shortName(const TimeZone& zone) const {
    const auto icuZone = icuTimeZone(zone);
    auto text = abbreviation(*icuZone);
    const bool isOffset = zone.secondsFromGMT(m_instant) != 0 &&
                          text == name(UTZFMT_STYLE_LOCALIZED_GMT_SHORT, *icuZone);
    return isOffset ? std::nullopt : text;
}

std::optional<QString> ZoneNames::genericName(const TimeZone& zone) const {
    // ICU gives generic names to none but its own kind of zone.
    const auto own = icuOwnTimeZone(zone);
    return own ? name(UTZFMT_STYLE_GENERIC_LONG, *own) : std::nullopt;
}

std::optional<QString> ZoneNames::genericName(const icu::TimeZone& zone) const {
    const auto* database = dynamic_cast<const DatabaseTimeZone*>(&zone);
    const auto* own = database == nullptr ? &zone : database->own();
    return own == nullptr ? std::nullopt : name(UTZFMT_STYLE_GENERIC_LONG, *own);
}

std::optional<QString>
ZoneNames::name(UTimeZoneFormatStyle style, const icu::TimeZone& zone) const {
    if (!m_format)
        return std::nullopt;
    icu::UnicodeString text;
    m_format->format(style, zone, icuDate(m_instant), text);
    return text.isEmpty() ? std::nullopt : std::optional(fromIcu(text));
}

std::optional<QString>
zoneAbbreviation(const TimeZone& zone, Instant instant, const UserLocale& locale) {
    return ZoneNames(instant, locale).abbreviation(zone);
}

} // namespace quorvane
