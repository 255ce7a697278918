// SPDX-License-Identifier: MIT
#include <picker/TimeZoneRow.h>
#include <timezones/ZoneTexts.h>

namespace quorvane {

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
    return m_names.of(m_zone, m_now);
}

} // namespace quorvane
