// SPDX-License-Identifier: MIT
#pragma once

#include <time/ZoneDatabase.h>

#include <QStringList>

#include <vector>

namespace quorvane {

/// The zones shown as chips: the favourites that name a zone, in their stored order, an old name as
/// the listed zone that it leads to; then the
/// selected zones that are no favourites. A favourite keeps its place whether selected or not.
[[nodiscard]] std::vector<TimeZone> timeZoneSlots(
    const QStringList& favorites,
    const std::vector<TimeZone>& selected,
    const ZoneDatabase& database);

} // namespace quorvane
