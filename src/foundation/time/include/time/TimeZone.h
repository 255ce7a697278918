// SPDX-License-Identifier: MIT
#pragma once

#include <time/Instant.h>

#include <QString>

#include <memory>

namespace quorvane {

class ZoneRules;

/// A zone of the system's time zone database. Only a ZoneDatabase makes one, so that a value always
/// names a zone that exists.
class TimeZone {
public:
    /// The IANA identifier, as it was asked for: a link keeps its own name.
    [[nodiscard]] const QString& identifier() const { return m_identifier; }

    /// Seconds east of Greenwich at that instant.
    [[nodiscard]] int secondsFromGMT(Instant instant) const;

    [[nodiscard]] bool isDaylightTime(Instant instant) const;

    /// Zones are the same when their identifiers are.
    friend bool operator==(const TimeZone& a, const TimeZone& b) {
        return a.m_identifier == b.m_identifier;
    }

private:
    friend class ZoneDatabase;
    TimeZone(QString identifier, std::shared_ptr<const ZoneRules> rules);

    QString m_identifier;
    std::shared_ptr<const ZoneRules> m_rules; ///< the database's own, which it keeps up to date
};

} // namespace quorvane
