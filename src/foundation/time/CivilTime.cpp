// SPDX-License-Identifier: MIT
#include <time/CivilTime.h>

#include <algorithm>
#include <cmath>
#include <optional>

namespace quorvane {

namespace {

using std::chrono::days;
using std::chrono::local_seconds;
using std::chrono::seconds;

// ICU's calendars hold this many days either way of 1970 (UCAL's documented limits, rounded down).
constexpr days calendarLimit{99'999'000};

local_seconds localTime(Instant instant, const TimeZone& zone) {
    constexpr auto limit = static_cast<double>(seconds(calendarLimit).count());
    if (std::isnan(instant.secondsSince1970))
        return {};
    const double wholeSeconds = std::floor(std::clamp(instant.secondsSince1970, -limit, limit));
    return local_seconds(
        seconds(static_cast<seconds::rep>(wholeSeconds)) + seconds(zone.secondsFromGMT(instant)));
}

Instant withOffset(local_seconds local, seconds offset) {
    return {static_cast<double>((local.time_since_epoch() - offset).count())};
}

/// The instant of a local time at that offset, if the offset is in force then.
std::optional<Instant> occurrence(local_seconds local, seconds offset, const TimeZone& zone) {
    const auto instant = withOffset(local, offset);
    return seconds(zone.secondsFromGMT(instant)) == offset ? std::optional(instant) : std::nullopt;
}

seconds offsetAt(Instant instant, const TimeZone& zone) {
    return seconds(zone.secondsFromGMT(instant));
}

} // namespace

CivilTime civilTime(Instant instant, const TimeZone& zone) {
    const auto local = localTime(instant, zone);
    const auto day = std::chrono::floor<days>(local);
    return {day, local - day};
}

CivilDay civilDay(Instant instant, const TimeZone& zone) {
    return civilTime(instant, zone).day;
}

Instant instantAt(const CivilTime& time, const TimeZone& zone, Instant present) {
    const local_seconds local = time.day + time.timeOfDay;
    if (const auto unmoved = occurrence(local, offsetAt(present, zone), zone))
        return *unmoved;
    // No offset is as large as a day, and zones do not change theirs twice within two.
    const auto before = offsetAt(withOffset(local, days(1)), zone);
    if (const auto first = occurrence(local, before, zone))
        return *first;
    const auto after = offsetAt(withOffset(local, -days(1)), zone);
    return occurrence(local, after, zone).value_or(withOffset(local, before));
}

Instant startOfMinute(Instant instant, const TimeZone& zone) {
    const auto past = civilTime(instant, zone).timeOfDay % std::chrono::minutes(1);
    return Instant{std::floor(instant.secondsSince1970)} + Seconds(-past);
}

Instant movedToDay(Instant instant, CivilDay day, const TimeZone& zone) {
    const auto moved = instantAt({day, civilTime(instant, zone).timeOfDay}, zone, instant);
    const double fraction = instant.secondsSince1970 - std::floor(instant.secondsSince1970);
    return std::isfinite(fraction) ? moved + Seconds(fraction) : moved;
}

} // namespace quorvane
