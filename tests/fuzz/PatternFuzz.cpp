// SPDX-License-Identifier: MIT
#include "FuzzInput.h"
#include "Samples.h"

#include <composition/ComposedOutput.h>
#include <composition/PresetList.h>
#include <testing/FixedCurrentZone.h>
#include <time/DatePattern.h>

#include <algorithm>

using namespace quorvane;

namespace {

OutputRequest requestIn(FuzzInput& input) {
    const auto flags = input.number<std::uint8_t>();
    OutputRequest request{
        .preset = allDateFormatPresets[flags % allDateFormatPresets.size()],
        .settings =
            {.includeDate = (flags & 0x10) != 0,
             .includeTime = (flags & 0x20) != 0,
             .customPattern = {},
             .locale = samples::locale(input)},
        .zones = {},
        .start = samples::instant(input),
        .end = {},
        .layout = (flags & 0x40) != 0 ? MultiZoneLayout::Lines : MultiZoneLayout::Inline};
    if ((flags & 0x80) != 0)
        request.end = samples::instant(input);
    for (int zones = input.below(4); zones > 0; --zones)
        request.zones.push_back(samples::zone(input));
    request.settings.customPattern = input.restAsText();
    return request;
}

void checkPositions(const QString& pattern) {
    const auto unknown = unknownPatternLetters(pattern);
    demand(std::ranges::is_sorted(unknown), "letters come in their order");
    demand(
        std::ranges::all_of(unknown, [&](qsizetype at) { return at >= 0 && at < pattern.size(); }),
        "letters stand in the pattern");
}

} // namespace

/// A custom pattern of any text, with the flags, zones, dates and locale that go with it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzInput input(data, size);
    const auto request = requestIn(input);
    const FixedCurrentZone currentZone(ZoneDatabase::utc());
    checkPositions(request.settings.customPattern);
    (void) hasIsoWeek(request.settings.customPattern);
    demand(
        composedOutput(request, currentZone) == composedOutput(request, currentZone),
        "the same request gives the same text");
    const auto zone = request.zones.empty() ? ZoneDatabase::utc() : request.zones.front();
    const auto available = availableFormatPresets(request.start, zone, request.settings);
    demand(
        std::ranges::find(available, DateFormatPreset::Custom) != available.end(),
        "Custom is always on offer");
    demand(
        std::ranges::find(available, reconciledFormatPreset(request.preset, available)) !=
            available.end(),
        "what is chosen instead is on offer");
    return 0;
}
