// SPDX-License-Identifier: MIT
#pragma once

#include <composition/FormatSingle.h>
#include <time/UserLocale.h>
#include <time/ZoneDatabase.h>

#include <vector>

namespace quorvane::samples {

inline constexpr Instant march9{1710021900}; ///< 2024-03-09T22:05:00Z, a Saturday
inline constexpr double hour = 3600;

[[nodiscard]] inline TimeZone zone(const char* identifier) {
    return ZoneDatabase().zone(QString::fromUtf8(identifier)).value();
}

[[nodiscard]] inline std::vector<TimeZone> zones(std::initializer_list<const char*> identifiers) {
    std::vector<TimeZone> result;
    for (const char* identifier : identifiers)
        result.push_back(zone(identifier));
    return result;
}

[[nodiscard]] inline UserLocale locale(const char* name) {
    return UserLocale::named(QString::fromUtf8(name));
}

inline constexpr bool with = true;
inline constexpr bool without = false;

/// In American English, with the pattern that a new model has.
[[nodiscard]] inline FormatSettings
settings(bool date, bool time, const char* localeName = "en_US") {
    return {date, time, QStringLiteral("yyyy-MM-dd HH:mm zzz"), locale(localeName)};
}

} // namespace quorvane::samples
