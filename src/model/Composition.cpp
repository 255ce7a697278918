// SPDX-License-Identifier: MIT
#include <model/Composition.h>
#include <time/CivilTime.h>

#include <utility>

namespace quorvane {

namespace {

constexpr Seconds initialSpan = std::chrono::hours(1);

} // namespace

Composition Composition::startingAt(Instant now, TimeZone zone) {
    Composition composition;
    composition.startDate = now;
    composition.endDate = now + initialSpan;
    composition.selectedTimeZones.push_back(std::move(zone));
    return composition;
}

void Composition::moveTo(Instant now, const TimeZone& zone) {
    const Seconds span(
        startOfMinute(endDate, zone).secondsSince1970 -
        startOfMinute(startDate, zone).secondsSince1970);
    startDate = now;
    endDate = now + span;
    hasEnteredDate = false;
}

} // namespace quorvane
