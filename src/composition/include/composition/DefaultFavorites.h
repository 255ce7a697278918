// SPDX-License-Identifier: MIT
#pragma once

#include <time/ZoneDatabase.h>

#include <QStringList>

namespace quorvane {

/// The favourites of a user who has chosen none: the current zone and seven of the world's, each
/// once, as far as the database knows them.
[[nodiscard]] QStringList
defaultFavoriteIdentifiers(const TimeZone& currentZone, const ZoneDatabase& database);

} // namespace quorvane
