// SPDX-License-Identifier: MIT
#include <composition/PresetList.h>

#include <algorithm>
#include <unordered_set>

namespace quorvane {

namespace {

bool suitsFlags(DateFormatPreset preset, const FormatSettings& settings) {
    switch (preset) {
    case DateFormatPreset::DateOnly:
        return settings.includeDate && !settings.includeTime;
    case DateFormatPreset::TimeOnly:
        return settings.includeTime && !settings.includeDate;
    default:
        return true;
    }
}

bool isAlwaysOffered(DateFormatPreset preset) {
    return preset == DateFormatPreset::UnixTimestamp || preset == DateFormatPreset::Custom;
}

} // namespace

std::vector<DateFormatPreset>
availableFormatPresets(Instant sample, const TimeZone& zone, const FormatSettings& settings) {
    std::vector<DateFormatPreset> available;
    std::unordered_set<QString> texts;
    for (const auto preset : allDateFormatPresets) {
        if (!suitsFlags(preset, settings))
            continue;
        if (isAlwaysOffered(preset) ||
            texts.insert(formatSingle(sample, zone, preset, settings)).second)
            available.push_back(preset);
    }
    return available;
}

DateFormatPreset
reconciledFormatPreset(DateFormatPreset preset, const std::vector<DateFormatPreset>& available) {
    const bool isOffered = std::ranges::find(available, preset) != available.end();
    return isOffered ? preset : available.front();
}

} // namespace quorvane
