// SPDX-License-Identifier: MIT
#pragma once

#include <time/CivilTime.h>

#include <optional>

namespace quorvane {

/// The day so many days on. Steps do not lead before the earliest day: they end there, and from a
/// day before it the next step forward leads to it and none leads back.
[[nodiscard]] CivilDay
movedByDays(CivilDay day, int amount, const std::optional<CivilDay>& earliest);

/// The full minute so many minutes on, as time passes: a skipped hour is skipped, and one that
/// occurs twice comes twice. Stays where it would lead back to a day before that of `earliest`.
[[nodiscard]] Instant movedByMinutes(
    Instant date, int amount, const std::optional<Instant>& earliest, const TimeZone& zone);

} // namespace quorvane
