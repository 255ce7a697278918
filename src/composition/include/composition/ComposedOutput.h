// SPDX-License-Identifier: MIT
#pragma once

#include <composition/FormatSingle.h>
#include <composition/MultiZoneLayout.h>
#include <time/CurrentZone.h>

#include <QString>

#include <optional>
#include <vector>

namespace quorvane {

/// All that the output is made from.
struct OutputRequest {
    DateFormatPreset preset = DateFormatPreset::LongForm;
    FormatSettings settings;
    std::vector<TimeZone> zones; ///< in the order of selection
    Instant start;
    std::optional<Instant> end; ///< of a range; may be before the start
    MultiZoneLayout layout = MultiZoneLayout::Inline;
};

/// The whole output: a text per zone, from west to east. Without a time there is one text, in the
/// first zone or, if there is none, the current one; so there is for a Unix timestamp. With a time
/// and no zones the output is empty.
[[nodiscard]] QString composedOutput(const OutputRequest& request, const CurrentZone& currentZone);

} // namespace quorvane
