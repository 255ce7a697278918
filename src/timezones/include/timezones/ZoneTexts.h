// SPDX-License-Identifier: MIT
#pragma once

#include <time/TimeZone.h>
#include <time/UserLocale.h>

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

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

/// What a list shows for the zone's place: its city, or "UTC−12" for Etc/GMT+12 and its like,
/// whose sign means the opposite of what people read.
[[nodiscard]] QString placeName(const QString& identifier);

/// "Toronto, UTC−5": the place of a zone and its offset at an instant; the one alone where it
/// says the other.
[[nodiscard]] QString placeAndOffset(const TimeZone& zone, Instant instant);

/// The abbreviation, or the city where that is missing or is no more than an offset ("GMT+9").
[[nodiscard]] QString
zoneLabel(const QString& identifier, const std::optional<QString>& abbreviation);

/// The short name of a zone at an instant: its abbreviation, or its place where the locale has no
/// other than the offset.
[[nodiscard]] QString zoneLabel(const TimeZone& zone, Instant instant, const UserLocale& locale);

/// The short names of zones that stand side by side. Two that would be the same get their places:
/// "CET Paris", "CET Berlin".
[[nodiscard]] QStringList
zoneLabels(const std::vector<TimeZone>& zones, Instant instant, const UserLocale& locale);

} // namespace quorvane
