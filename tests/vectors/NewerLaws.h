// SPDX-License-Identifier: MIT
#pragma once

#include <time/TimeZone.h>
#include <time/UserLocale.h>

#include <QString>

namespace quorvane {

/// Whether the zone's law is newer than ICU 72's data, so that what it is called there is neither
/// what the rows' oracles say nor what ICU has.
[[nodiscard]] bool hasNewerLaw(const QString& identifier);

/// The zone's abbreviation, if it means the offset that CPython's zoneinfo has at that instant;
/// otherwise a text that says what is wrong with it.
[[nodiscard]] QString
confirmedAbbreviation(const TimeZone& zone, Instant now, const UserLocale& locale);

/// "UTC−12": the whole hours that CPython's zoneinfo has for the zone at that instant.
[[nodiscard]] QString placeByOracle(const TimeZone& zone, Instant now);

} // namespace quorvane
