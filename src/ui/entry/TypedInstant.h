// SPDX-License-Identifier: MIT
#pragma once

#include <time/CivilTime.h>
#include <time/TypedDate.h>

#include <optional>

namespace quorvane {

/// The instant that a typed date makes of the one in its field: a day keeps the time of day, a time
/// with an offset is the same everywhere. None without a day.
[[nodiscard]] std::optional<Instant>
typedInstant(const TypedDate& date, Instant field, const TimeZone& zone);

} // namespace quorvane
