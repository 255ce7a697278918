// SPDX-License-Identifier: MIT
#include "DatabaseTimeZone.h"
#include "IcuText.h"

#include <time/IcuTimeZone.h>

#include <cmath>

namespace quorvane {

namespace {

bool agreesAt(const icu::TimeZone& own, const TimeZone& zone, Instant instant) {
    int32_t raw = 0;
    int32_t daylight = 0;
    auto status = U_ZERO_ERROR;
    own.getOffset(icuDate(instant), false, raw, daylight, status);
    return U_SUCCESS(status) &&
           raw + daylight == zone.secondsFromGMT(instant) * U_MILLIS_PER_SECOND;
}

bool agreesAround(const icu::TimeZone& own, const TimeZone& zone, Instant instant) {
    // As far as ICU looks for daylight time when it chooses a generic name.
    constexpr Seconds halfYear = std::chrono::days(182);
    return agreesAt(own, zone, instant) && agreesAt(own, zone, instant + halfYear) &&
           agreesAt(own, zone, instant + -halfYear);
}

} // namespace

std::unique_ptr<icu::TimeZone> icuTimeZone(const TimeZone& zone) {
    return std::make_unique<DatabaseTimeZone>(zone);
}

std::unique_ptr<icu::TimeZone> icuTimeZoneAt(const TimeZone& zone, Instant instant) {
    auto own = icuOwnTimeZone(zone);
    return own && agreesAround(*own, zone, instant) ? std::move(own) : icuTimeZone(zone);
}

std::unique_ptr<icu::TimeZone> icuOwnTimeZone(const TimeZone& zone) {
    std::unique_ptr<icu::TimeZone> own(icu::TimeZone::createTimeZone(toIcu(zone.identifier())));
    // What ICU does not know it takes for GMT.
    return *own == icu::TimeZone::getUnknown() ? nullptr : std::move(own);
}

UDate icuDate(Instant instant) {
    return std::floor(instant.secondsSince1970 * U_MILLIS_PER_SECOND);
}

} // namespace quorvane
