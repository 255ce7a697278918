// SPDX-License-Identifier: MIT
#include <time/TimeZone.h>

#include <QDateTime>

#include <algorithm>
#include <cmath>

namespace quorvane {

namespace {

// Up to here a double counts whole milliseconds: some 285 000 years either way. Zones have no
// transitions near it, so that instants beyond take the offset at the limit.
constexpr double lastMillisecond = 9007199254740992.0;

QDateTime utcDateTime(Instant instant) {
    const double milliseconds = std::floor(instant.secondsSince1970 * 1000);
    if (std::isnan(milliseconds))
        return QDateTime::fromMSecsSinceEpoch(0, QTimeZone::utc());
    const double clamped = std::clamp(milliseconds, -lastMillisecond, lastMillisecond);
    return QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(clamped), QTimeZone::utc());
}

} // namespace

TimeZone::TimeZone(QString identifier, QTimeZone zone)
    : m_identifier(std::move(identifier)),
      m_zone(std::move(zone)) {
}

int TimeZone::secondsFromGMT(Instant instant) const {
    return m_zone.offsetFromUtc(utcDateTime(instant));
}

bool TimeZone::isDaylightTime(Instant instant) const {
    return m_zone.isDaylightTime(utcDateTime(instant));
}

} // namespace quorvane
