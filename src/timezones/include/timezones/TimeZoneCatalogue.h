// SPDX-License-Identifier: MIT
#pragma once

#include <time/ZoneDatabase.h>

#include <QString>

#include <vector>

namespace quorvane {

/// From west to east at that instant; zones of one offset by identifier.
[[nodiscard]] std::vector<TimeZone> sortedByOffset(std::vector<TimeZone> zones, Instant instant);

/// The zones that a list offers, in the order it shows them: those of the database's table by
/// country, UTC, and the zone furthest west, which no country has. Made when the list opens, for
/// that instant; a database without the table has UTC alone.
class TimeZoneCatalogue {
public:
    struct Entry {
        TimeZone zone;
        QString searchText;    ///< the identifier in lower case, with spaces for underscores
        QStringList countries; ///< as codes of ISO 3166
        QStringList oldNames;  ///< identifiers that lead to the zone
    };

    TimeZoneCatalogue(const ZoneDatabase& database, Instant instant);

    [[nodiscard]] const std::vector<Entry>& entries() const { return m_entries; }

    /// The instant whose offsets gave the order.
    [[nodiscard]] Instant instant() const { return m_instant; }

private:
    Instant m_instant;
    std::vector<Entry> m_entries;
};

} // namespace quorvane
