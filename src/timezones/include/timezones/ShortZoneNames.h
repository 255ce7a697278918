// SPDX-License-Identifier: MIT
#pragma once

#include <time/UserLocale.h>
#include <time/ZoneNames.h>

#include <QString>

#include <optional>
#include <unordered_map>

namespace quorvane {

/// The short names of zones for lists that show the same ones again and again. To make one takes
/// longer than to paint the row that it stands in, so each is made once a minute.
class ShortZoneNames {
public:
    explicit ShortZoneNames(UserLocale locale) : m_locale(std::move(locale)) {}

    /// "EST"; empty where the locale has no other name than the offset, see ZoneNames.
    [[nodiscard]] QString of(const TimeZone& zone, Instant now) const;

private:
    /// All that is known in one minute.
    struct Minute {
        Minute(Instant minute, const UserLocale& locale) : start(minute), names(minute, locale) {}

        Instant start;
        ZoneNames names;
        std::unordered_map<QString, QString> known; ///< by the zone's identifier
    };

    UserLocale m_locale;
    mutable std::optional<Minute> m_minute; ///< the last that was asked about
};

} // namespace quorvane
