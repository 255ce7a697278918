// SPDX-License-Identifier: MIT
#include <composition/ZoneSlots.h>

#include <unordered_set>

namespace quorvane {

std::vector<TimeZone> timeZoneSlots(
    const QStringList& favorites,
    const std::vector<TimeZone>& selected,
    const ZoneDatabase& database) {
    std::vector<TimeZone> slots;
    std::unordered_set<QString> favoriteIdentifiers;
    for (const auto& identifier : favorites) {
        if (auto zone = database.zone(identifier)) {
            slots.push_back(*std::move(zone));
            favoriteIdentifiers.insert(identifier);
        }
    }
    for (const auto& zone : selected) {
        if (!favoriteIdentifiers.contains(zone.identifier()))
            slots.push_back(zone);
    }
    return slots;
}

} // namespace quorvane
