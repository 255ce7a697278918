// SPDX-License-Identifier: MIT
#include <time/OtherZoneNames.h>
#include <timezones/TimeZoneCatalogue.h>

#include <algorithm>
#include <functional>
#include <tuple>

namespace quorvane {

namespace {

struct PlacedZone {
    int offset;
    TimeZone zone;

    friend bool operator<(const PlacedZone& a, const PlacedZone& b) {
        return std::tie(a.offset, a.zone.identifier()) < std::tie(b.offset, b.zone.identifier());
    }
};

} // namespace

std::vector<TimeZone> sortedByOffset(std::vector<TimeZone> zones, Instant instant) {
    std::vector<PlacedZone> placed;
    placed.reserve(zones.size());
    for (auto& zone : zones) {
        const int offset = zone.secondsFromGMT(instant);
        placed.push_back({offset, std::move(zone)});
    }
    std::ranges::stable_sort(placed, std::less<>());
    std::ranges::transform(
        placed, zones.begin(), [](PlacedZone& each) { return std::move(each.zone); });
    return zones;
}

TimeZoneCatalogue::TimeZoneCatalogue(const ZoneDatabase& database, Instant instant)
    : m_instant(instant) {
    auto other = OtherZoneNames::in(database);
    for (auto& zone : sortedByOffset(database.zones(database.listedZones()), instant)) {
        const auto identifier = zone.identifier();
        m_entries.push_back(
            {std::move(zone),
             identifier.toLower().replace(u'_', u' '),
             std::move(other.countries[identifier]),
             std::move(other.oldNames[identifier])});
    }
}

} // namespace quorvane
