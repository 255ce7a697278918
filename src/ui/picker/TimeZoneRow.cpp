// SPDX-License-Identifier: MIT
#include <picker/TimeZoneRow.h>
#include <time/ZoneNames.h>
#include <timezones/ZoneTexts.h>

namespace quorvane {

TimeZoneRow::TimeZoneRow(TimeZone zone, Instant now, UserLocale locale)
    : m_zone(std::move(zone)),
      m_now(now),
      m_locale(std::move(locale)) {
}

QString TimeZoneRow::place() const {
    return placeName(m_zone.identifier());
}

std::optional<QString> TimeZoneRow::regionName() const {
    return quorvane::regionName(m_zone.identifier());
}

QString TimeZoneRow::offsetString() const {
    return quorvane::offsetString(m_zone, m_now);
}

QString TimeZoneRow::abbreviation() const {
    return zoneAbbreviation(m_zone, m_now, m_locale).value_or(QString());
}

std::optional<QString> TimeZoneRow::shortName() const {
    return ZoneNames(m_now, m_locale).shortName(m_zone);
}

} // namespace quorvane
