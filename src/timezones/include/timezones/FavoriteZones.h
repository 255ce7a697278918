// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <time/ZoneDatabase.h>
#include <vector>

namespace quorvane {

/// The zones that the identifiers name, in their order; what names none is dropped. Links are zones
/// of their own and keep their name.
[[nodiscard]] std::vector<TimeZone>
favoriteZones(const QStringList& identifiers, const ZoneDatabase& database);

} // namespace quorvane
