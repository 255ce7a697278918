// SPDX-License-Identifier: MIT
#pragma once

#include <time/TimeZone.h>
#include <time/UserLocale.h>

#include <QString>

#include <optional>

namespace quorvane {

/// "UTC+5:45" for seconds east of Greenwich; whole hours without minutes, seconds dropped. The sign
/// is that of the hours: less than an hour west reads as east ("UTC+0:30").
[[nodiscard]] QString offsetText(int secondsFromGMT);

/// The offset text of a zone at an instant.
[[nodiscard]] QString offsetString(const TimeZone& zone, Instant instant);

/// "America" of "America/New_York"; none where an identifier is not divided.
[[nodiscard]] std::optional<QString> regionName(const QString& identifier);

/// "New York" of "America/New_York"; an identifier of slashes alone is its own city.
[[nodiscard]] QString cityName(const QString& identifier);

/// The short name of a zone: its abbreviation, or its city where the abbreviation is missing or is
/// no more than an offset ("GMT+9").
[[nodiscard]] QString
zoneLabel(const QString& identifier, const std::optional<QString>& abbreviation);

/// As above, by the zone's abbreviation at an instant.
[[nodiscard]] QString zoneLabel(const TimeZone& zone, Instant instant, const UserLocale& locale);

} // namespace quorvane
