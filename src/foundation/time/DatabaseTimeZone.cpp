// SPDX-License-Identifier: MIT
#include "DatabaseTimeZone.h"

#include "IcuText.h"

#include <time/IcuTimeZone.h>

#include <unicode/gregocal.h>

#include <algorithm>
#include <chrono>

namespace quorvane {

namespace {

// Past the last transition that a data file lists; from here on the zone's standing rule holds.
constexpr UDate standingRule = 2145916800.0 * U_MILLIS_PER_SECOND; // 2038-01-01T00:00:00Z

UDate localMilliseconds(
    uint8_t era, int32_t year, int32_t month, int32_t day, int32_t milliseconds) {
    const int32_t signedYear = era == icu::GregorianCalendar::AD ? year : 1 - year;
    const std::chrono::year_month_day date{
        std::chrono::year(signedYear),
        std::chrono::month(static_cast<unsigned>(month + 1)),
        std::chrono::day(static_cast<unsigned>(day))};
    const auto days = std::chrono::sys_days(date).time_since_epoch().count();
    return static_cast<double>(days) * U_MILLIS_PER_DAY + milliseconds;
}

} // namespace

DatabaseTimeZone::DatabaseTimeZone(const quorvane::TimeZone& zone)
    : icu::TimeZone(toIcu(zone.identifier())),
      m_zone(zone),
      m_own(icuOwnTimeZone(zone)) {
}

DatabaseTimeZone::DatabaseTimeZone(const DatabaseTimeZone& other)
    : icu::TimeZone(other),
      m_zone(other.m_zone),
      m_own(other.m_own ? other.m_own->clone() : nullptr) {
}

int32_t DatabaseTimeZone::getOffset(
    uint8_t era,
    int32_t year,
    int32_t month,
    int32_t day,
    uint8_t /*dayOfWeek*/,
    int32_t milliseconds,
    UErrorCode& status) const {
    if (U_FAILURE(status))
        return 0;
    return offsetAtLocal(localMilliseconds(era, year, month, day, milliseconds)).total();
}

int32_t DatabaseTimeZone::getOffset(
    uint8_t era,
    int32_t year,
    int32_t month,
    int32_t day,
    uint8_t dayOfWeek,
    int32_t milliseconds,
    int32_t /*monthLength*/,
    UErrorCode& status) const {
    return getOffset(era, year, month, day, dayOfWeek, milliseconds, status);
}

void DatabaseTimeZone::getOffset(
    UDate date,
    UBool isLocal,
    int32_t& rawOffset,
    int32_t& daylightOffset,
    UErrorCode& status) const {
    if (U_FAILURE(status))
        return;
    const auto offset = isLocal ? offsetAtLocal(date) : offsetAt(date);
    rawOffset = offset.raw;
    daylightOffset = offset.daylight;
}

int32_t DatabaseTimeZone::getRawOffset() const {
    return offsetAt(standingRule).raw;
}

void DatabaseTimeZone::setRawOffset(int32_t /*milliseconds*/) {
    // The database's offsets are not ours to change.
}

UBool DatabaseTimeZone::useDaylightTime() const {
    constexpr UDate halfYear = 182.0 * U_MILLIS_PER_DAY;
    const bool isUsed =
        offsetAt(standingRule).daylight != 0 || offsetAt(standingRule + halfYear).daylight != 0;
    return static_cast<UBool>(isUsed);
}

UBool DatabaseTimeZone::inDaylightTime(UDate date, UErrorCode& status) const {
    return static_cast<UBool>(U_SUCCESS(status) && offsetAt(date).daylight != 0);
}

DatabaseTimeZone* DatabaseTimeZone::clone() const {
    return new DatabaseTimeZone(*this);
}

UClassID DatabaseTimeZone::getDynamicClassID() const {
    static const char classId = 0;
    return const_cast<char*>(&classId);
}

DatabaseTimeZone::Offset DatabaseTimeZone::offsetAt(UDate date) const {
    if (date != m_lastDate) {
        m_lastOffset = computedOffsetAt(date);
        m_lastDate = date;
    }
    return m_lastOffset;
}

DatabaseTimeZone::Offset DatabaseTimeZone::computedOffsetAt(UDate date) const {
    const Instant instant{date / U_MILLIS_PER_SECOND};
    const int32_t total = m_zone.secondsFromGMT(instant) * U_MILLIS_PER_SECOND;
    if (const auto named = namedOffset(total, date))
        return *named;
    const int32_t daylight = m_zone.isDaylightTime(instant) ? U_MILLIS_PER_HOUR : 0;
    return {total - daylight, daylight, false};
}

std::optional<DatabaseTimeZone::Offset>
DatabaseTimeZone::namedOffset(int32_t total, UDate date) const {
    if (!m_own)
        return std::nullopt;
    int32_t raw = 0;
    int32_t daylight = 0;
    auto status = U_ZERO_ERROR;
    m_own->getOffset(date, false, raw, daylight, status);
    if (U_FAILURE(status))
        return std::nullopt;
    if (raw + daylight == total)
        return Offset{raw, daylight, true};
    if (raw == total)
        return Offset{raw, 0, true};
    const int32_t savings = daylight != 0 ? daylight : m_own->getDSTSavings();
    return raw + savings == total ? std::optional(Offset{raw, savings, true}) : std::nullopt;
}

DatabaseTimeZone::Offset DatabaseTimeZone::offsetAtLocal(UDate local) const {
    // The two offsets in question are those in force a day to either side. Where a local time
    // occurs twice, ICU expects the later; where it is skipped, the offset from before the gap.
    const auto before = offsetAt(local - U_MILLIS_PER_DAY);
    const auto after = offsetAt(local + U_MILLIS_PER_DAY);
    for (const auto& candidate : {after, before}) {
        if (const auto offset = offsetAt(local - candidate.total());
            offset.total() == candidate.total())
            return offset;
    }
    return before;
}

} // namespace quorvane
