// SPDX-License-Identifier: MIT
#include <composition/ComposedOutput.h>

#include <QStringList>

#include <algorithm>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

bool isRenderedOnce(const OutputRequest& request) {
    return request.preset == DateFormatPreset::UnixTimestamp || !request.settings.includeTime;
}

/// By the offset at the start, also if the end of a range lies in another season.
std::vector<TimeZone> fromWestToEast(std::vector<TimeZone> zones, Instant start) {
    std::ranges::stable_sort(
        zones, {}, [start](const TimeZone& zone) { return zone.secondsFromGMT(start); });
    return zones;
}

std::vector<TimeZone> renderedZones(const OutputRequest& request, const CurrentZone& currentZone) {
    if (!isRenderedOnce(request))
        return fromWestToEast(request.zones, request.start);
    return {request.zones.empty() ? currentZone.current() : request.zones.front()};
}

QString zoneText(const OutputRequest& request, const TimeZone& zone) {
    const auto text = [&](Instant instant) {
        return formatSingle(instant, zone, request.preset, request.settings);
    };
    if (!request.end)
        return text(request.start);
    return text(request.start) + u" \u2013 "_s + text(*request.end);
}

} // namespace

QString composedOutput(const OutputRequest& request, const CurrentZone& currentZone) {
    QStringList texts;
    for (const auto& zone : renderedZones(request, currentZone))
        texts.append(zoneText(request, zone));
    return texts.join(request.layout == MultiZoneLayout::Lines ? "\n"_L1 : " / "_L1);
}

} // namespace quorvane
