// SPDX-License-Identifier: MIT
#pragma once

#include <time/TimeZone.h>

#include <vector>

namespace quorvane {

/// The selection after a click on a zone: appended if it was not selected, removed if it was. The
/// last zone of a selection stays.
[[nodiscard]] std::vector<TimeZone>
toggledSelection(std::vector<TimeZone> selection, const TimeZone& zone);

} // namespace quorvane
