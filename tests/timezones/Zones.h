// SPDX-License-Identifier: MIT
#pragma once

#include <time/UserLocale.h>
#include <time/ZoneDatabase.h>

#include <initializer_list>
#include <string>
#include <vector>

namespace quorvane {

constexpr Instant winter{1705320000}; // 2024-01-15T12:00:00Z
constexpr Instant summer{1721044800}; // 2024-07-15T12:00:00Z

inline TimeZone zone(const char* identifier) {
    return ZoneDatabase().zone(QString::fromUtf8(identifier)).value();
}

inline std::vector<TimeZone> zoneList(std::initializer_list<const char*> identifiers) {
    std::vector<TimeZone> zones;
    for (const char* identifier : identifiers)
        zones.push_back(zone(identifier));
    return zones;
}

inline UserLocale locale(const char* name) {
    return UserLocale::named(QString::fromUtf8(name));
}

inline std::vector<std::string> identifiersOf(const std::vector<TimeZone>& zones) {
    std::vector<std::string> identifiers;
    for (const auto& each : zones)
        identifiers.push_back(each.identifier().toStdString());
    return identifiers;
}

} // namespace quorvane
