// SPDX-License-Identifier: MIT
#include "ZoneRules.h"

#include <time/TimeZone.h>

#include <algorithm>
#include <cmath>

namespace quorvane {

namespace {

// Up to here a double counts whole milliseconds: some 285 000 years either way. Zones have no
// transitions near it, so that instants beyond take the offset at the limit.
constexpr double lastSecond = 9007199254740992.0 / 1000;

long long wholeSeconds(Instant instant) {
    if (std::isnan(instant.secondsSince1970))
        return 0;
    return static_cast<long long>(
        std::floor(std::clamp(instant.secondsSince1970, -lastSecond, lastSecond)));
}

} // namespace

TimeZone::TimeZone(QString identifier, std::shared_ptr<const ZoneRules> rules)
    : m_identifier(std::move(identifier)),
      m_rules(std::move(rules)) {
}

int TimeZone::secondsFromGMT(Instant instant) const {
    return m_rules->at(wholeSeconds(instant)).seconds;
}

bool TimeZone::isDaylightTime(Instant instant) const {
    return m_rules->at(wholeSeconds(instant)).isDaylight;
}

} // namespace quorvane
