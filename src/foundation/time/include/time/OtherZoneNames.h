// SPDX-License-Identifier: MIT
#pragma once

#include <time/ZoneDatabase.h>

#include <QString>
#include <QStringList>

#include <unordered_map>

namespace quorvane {

/// What the zones that lists offer are known by besides their identifiers.
struct OtherZoneNames {
    using Names = std::unordered_map<QString, QStringList>;

    /// Reads the index of the database anew.
    [[nodiscard]] static OtherZoneNames in(const ZoneDatabase& database);

    Names countries; ///< the codes of ISO 3166 that the table by country has for a zone
    Names oldNames;  ///< what leads to it and is not listed itself: "Asia/Calcutta"
};

} // namespace quorvane
