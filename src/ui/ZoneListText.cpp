// SPDX-License-Identifier: MIT
#include <ui/ZoneListText.h>

#include <QStringList>

#include <algorithm>

namespace quorvane {

using namespace Qt::StringLiterals;

QString zoneListText(const std::vector<TimeZone>& zones) {
    QStringList identifiers;
    for (const auto& zone : zones)
        identifiers.append(zone.identifier());
    return identifiers.join(u", "_s);
}

std::vector<TimeZone> zonesFromText(const QString& text, const ZoneDatabase& database) {
    std::vector<TimeZone> zones;
    for (const auto& piece : text.split(u',', Qt::SkipEmptyParts)) {
        const auto zone = database.zone(piece.trimmed());
        if (zone && std::ranges::find(zones, *zone) == zones.end())
            zones.push_back(*zone);
    }
    return zones;
}

} // namespace quorvane
