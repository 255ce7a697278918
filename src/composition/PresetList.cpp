// SPDX-License-Identifier: MIT
#include <composition/PresetList.h>

#include <algorithm>
#include <set>

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

bool isOffered(DateFormatPreset preset, const std::vector<DateFormatPreset>& available) {
    return std::ranges::find(available, preset) != available.end();
}

} // namespace

std::vector<DateFormatPreset>
availableFormatPresets(Instant sample, const TimeZone& zone, const FormatSettings& settings) {
    std::vector<DateFormatPreset> available;
    std::set<QString> texts;
    for (const auto preset : allDateFormatPresets) {
        if (!suitsFlags(preset, settings))
            continue;
        if (isAlwaysOffered(preset) ||
            texts.insert(formatSingle(sample, zone, preset, settings)).second)
            available.push_back(preset);
    }
    return available;
}

std::optional<DateFormatPreset> equivalentFormatPreset(
    DateFormatPreset preset,
    const std::vector<DateFormatPreset>& available,
    Instant sample,
    const TimeZone& zone,
    const FormatSettings& settings) {
    if (isOffered(preset, available))
        return preset;
    const auto textOf = [&](DateFormatPreset each) {
        return formatSingle(sample, zone, each, settings);
    };
    const auto found = std::ranges::find(available, textOf(preset), textOf);
    return found == available.end() ? std::nullopt : std::optional(*found);
}

DateFormatPreset
reconciledFormatPreset(DateFormatPreset preset, const std::vector<DateFormatPreset>& available) {
    return isOffered(preset, available) ? preset : available.front();
}

} // namespace quorvane
