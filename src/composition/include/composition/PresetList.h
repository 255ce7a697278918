// SPDX-License-Identifier: MIT
#pragma once

#include <composition/FormatSingle.h>

#include <optional>
#include <vector>

namespace quorvane {

/// The presets worth offering, in their order: without those that the flags rule out, and without
/// those whose text for `sample` in `zone` an earlier preset already gives. Unix timestamp and
/// Custom are always there.
[[nodiscard]] std::vector<DateFormatPreset>
availableFormatPresets(Instant sample, const TimeZone& zone, const FormatSettings& settings);

/// `preset` if it is on offer, else the one on offer that gives the same text for `sample` in
/// `zone`; none if there is no such one.
[[nodiscard]] std::optional<DateFormatPreset> equivalentFormatPreset(
    DateFormatPreset preset,
    const std::vector<DateFormatPreset>& available,
    Instant sample,
    const TimeZone& zone,
    const FormatSettings& settings);

/// `preset` if it is on offer, else the first that is. `available` must not be empty.
[[nodiscard]] DateFormatPreset
reconciledFormatPreset(DateFormatPreset preset, const std::vector<DateFormatPreset>& available);

} // namespace quorvane
