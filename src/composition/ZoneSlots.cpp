// SPDX-License-Identifier: MIT
#include <composition/ZoneSlots.h>

#include <algorithm>
#include <iterator>

namespace quorvane {

std::vector<TimeZone> timeZoneSlots(
    const QStringList& favorites,
    const std::vector<TimeZone>& selected,
    const ZoneDatabase& database) {
    const auto listed = database.listedNames(favorites);
    auto slots = database.zones(listed);
    std::ranges::copy_if(selected, std::back_inserter(slots), [&](const TimeZone& zone) {
        return !listed.contains(zone.identifier());
    });
    return slots;
}

} // namespace quorvane
