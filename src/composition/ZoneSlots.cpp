// SPDX-License-Identifier: MIT
#include <composition/ZoneSlots.h>

#include <algorithm>
#include <iterator>

namespace quorvane {

std::vector<TimeZone> timeZoneSlots(
    const QStringList& favorites,
    const std::vector<TimeZone>& selected,
    const ZoneDatabase& database) {
    auto slots = database.zones(favorites);
    std::ranges::copy_if(selected, std::back_inserter(slots), [&](const TimeZone& zone) {
        return !favorites.contains(zone.identifier());
    });
    return slots;
}

} // namespace quorvane
