// SPDX-License-Identifier: MIT
#pragma once

#include <time/Instant.h>

namespace quorvane {

/// The start of the minute in which an instant lies. Clocks change on whole minutes only, so what a
/// zone is called then it is called up to the instant.
[[nodiscard]] Instant startOfClockMinute(Instant instant);

} // namespace quorvane
