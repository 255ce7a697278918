// SPDX-License-Identifier: MIT
#pragma once

#include <time/TimeZone.h>
#include <time/UserLocale.h>

#include <QString>

#include <optional>

namespace quorvane {

/// What a list shows of one zone at one instant. Cheap to make: texts are computed when they are
/// asked for, which is when the row is seen.
class TimeZoneRow {
public:
    TimeZoneRow(TimeZone zone, Instant now, UserLocale locale);

    [[nodiscard]] const TimeZone& zone() const { return m_zone; }

    /// "New York" of "America/New_York"; see placeName().
    [[nodiscard]] QString place() const;

    /// "America"; none for an identifier that is not divided.
    [[nodiscard]] std::optional<QString> regionName() const;

    /// "UTC-5".
    [[nodiscard]] QString offsetString() const;

    /// "EST"; "GMT-3" where the locale has no name.
    [[nodiscard]] QString abbreviation() const;

    /// "EST"; none where the locale has no name.
    [[nodiscard]] std::optional<QString> shortName() const;

private:
    TimeZone m_zone;
    Instant m_now;
    UserLocale m_locale;
};

} // namespace quorvane
