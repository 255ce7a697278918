// SPDX-License-Identifier: MIT
#include <timezones/FavoriteZones.h>

namespace quorvane {

std::vector<TimeZone> favoriteZones(const QStringList& identifiers, const ZoneDatabase& database) {
    std::vector<TimeZone> zones;
    for (const auto& identifier : identifiers) {
        if (auto zone = database.zone(identifier))
            zones.push_back(*std::move(zone));
    }
    return zones;
}

} // namespace quorvane
