// SPDX-License-Identifier: MIT
#pragma once

#include <time/TimeZone.h>
#include <time/UserLocale.h>

#include <QString>
#include <unicode/tzfmt.h>

#include <memory>
#include <optional>

namespace quorvane {

/// What a locale calls zones at one instant. Making it costs more than a name does: one is made for
/// a run over many zones, and thrown away after it.
class ZoneNames {
public:
    ZoneNames(Instant instant, const UserLocale& locale);

    /// The text of the date pattern "zzz": "PST", or "GMT+9" where the locale has no abbreviation
    /// that means the offset in force.
    /// Never the time zone database's own, which are not those that users of a locale know.
    [[nodiscard]] std::optional<QString> abbreviation(const TimeZone& zone) const;

    /// The same text for what icuTimeZone() made: for those who ask again and again, as making that
    /// costs more than the name does.
    [[nodiscard]] std::optional<QString> abbreviation(const icu::TimeZone& zone) const;

    /// The abbreviation if it is a name: none where it is no more than the offset in the locale's
    /// own form, "GMT+9" or "UTC+9". That of no offset, "GMT" or "UTC", is a name.
    [[nodiscard]] std::optional<QString> shortName(const TimeZone& zone) const;

    /// The text of the date pattern "vvvv", the same all year round: "Pacific Time". None for a
    /// zone that is newer than ICU's data.
    [[nodiscard]] std::optional<QString> genericName(const TimeZone& zone) const;

    /// The same text for what icuTimeZone() made.
    [[nodiscard]] std::optional<QString> genericName(const icu::TimeZone& zone) const;

private:
    [[nodiscard]] std::optional<QString>
    name(UTimeZoneFormatStyle style, const icu::TimeZone& zone) const;

    Instant m_instant;
    std::unique_ptr<icu::TimeZoneFormat> m_format; ///< null if ICU has no data
};

/// The abbreviation of a single zone.
[[nodiscard]] std::optional<QString>
zoneAbbreviation(const TimeZone& zone, Instant instant, const UserLocale& locale);

} // namespace quorvane
