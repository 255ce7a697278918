// SPDX-License-Identifier: MIT
#pragma once

#include <time/TimeZone.h>

#include <chrono>

namespace quorvane {

/// A day as a wall calendar has it, in no particular zone: counted from 1970-01-01, so that days
/// compare and step as numbers, whatever calendar their names come from.
using CivilDay = std::chrono::local_days;

/// What calendar and clock show somewhere.
struct CivilTime {
    CivilDay day;
    std::chrono::seconds timeOfDay{}; ///< from 0 to below 24 hours

    friend bool operator==(const CivilTime&, const CivilTime&) = default;
};

/// What clocks show in a zone, without the fraction of the second. Instants beyond the range of
/// ICU's calendars (270 000 years either way) are clamped to it; NaN gives 1970.
[[nodiscard]] CivilTime civilTime(Instant instant, const TimeZone& zone);

[[nodiscard]] CivilDay civilDay(Instant instant, const TimeZone& zone);

/// The instant at which they show that. A time that the zone skips is taken with the offset from
/// before the gap (02:30 becomes 03:30). One that occurs twice is taken with the offset in force at
/// `present` if that is one of the two, else it is the first: what is edited does not move by
/// itself.
[[nodiscard]] Instant instantAt(const CivilTime& time, const TimeZone& zone, Instant present);

/// When the minute that clocks show in a zone began.
[[nodiscard]] Instant startOfMinute(Instant instant, const TimeZone& zone);

/// The same time of day, to the fraction of the second, on another day; by the rules above.
[[nodiscard]] Instant movedToDay(Instant instant, CivilDay day, const TimeZone& zone);

} // namespace quorvane
