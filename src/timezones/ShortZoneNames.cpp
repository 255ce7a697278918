// SPDX-License-Identifier: MIT
#include "ClockMinute.h"

#include <timezones/ShortZoneNames.h>

namespace quorvane {

QString ShortZoneNames::of(const TimeZone& zone, Instant now) const {
    const auto start = startOfClockMinute(now);
    if (!m_minute || m_minute->start != start)
        m_minute.emplace(start, m_locale);
    const auto [name, isNew] = m_minute->known.try_emplace(zone.identifier());
    if (isNew)
        name->second = m_minute->names.shortName(zone).value_or(QString());
    return name->second;
}

} // namespace quorvane
