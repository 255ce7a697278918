// SPDX-License-Identifier: MIT
#pragma once

#include <time/TimeZone.h>
#include <timezones/ShortZoneNames.h>

#include <QString>

#include <optional>
#include <utility>

namespace quorvane {

/// What a list shows of one zone at one instant. Cheap to make: texts are computed when they are
/// asked for, which is when the row is seen.
class TimeZoneRow {
public:
    /// The names must outlive the row.
    TimeZoneRow(TimeZone zone, Instant now, const ShortZoneNames& names)
        : m_zone(std::move(zone)),
          m_now(now),
          m_names(names) {}

    [[nodiscard]] const TimeZone& zone() const { return m_zone; }

    /// "New York" of "America/New_York"; see placeName().
    [[nodiscard]] QString place() const;

    /// "America"; none for an identifier that is not divided.
    [[nodiscard]] std::optional<QString> regionName() const;

    /// "UTC-5".
    [[nodiscard]] QString offsetString() const;

    /// "EST"; empty where the locale has no other name than the offset, which is shown already.
    [[nodiscard]] QString abbreviation() const;

private:
    TimeZone m_zone;
    Instant m_now;
    const ShortZoneNames& m_names;
};

} // namespace quorvane
