// SPDX-License-Identifier: MIT
#include "PresetNames.h"
#include "VectorKinds.h"

#include <composition/DefaultFavorites.h>
#include <composition/IncludeGuard.h>
#include <composition/PresetList.h>
#include <composition/ZoneSlots.h>

namespace quorvane {

using namespace Qt::StringLiterals;

Comparison checkAvailablePresets(const VectorRow& row) {
    const FormatSettings settings{
        row.flag("includeDate"), row.flag("includeTime"), u"yyyy-MM-dd HH:mm zzz"_s, row.locale()};
    const auto available = availableFormatPresets(row.instant("start"), row.zone("zone"), settings);
    QJsonArray names;
    for (const auto preset : available)
        names.append(presetName(preset));
    const auto reconciled = reconciledFormatPreset(presetIn(row, "preset"), available);
    return {
        QJsonArray{row.array("available"), row.text("reconciled")},
        QJsonArray{names, presetName(reconciled)}};
}

Comparison checkSlots(const VectorRow& row) {
    const auto zones = timeZoneSlots(row.texts("favorites"), row.zoneList("selected"), row.zones());
    QJsonArray identifiers;
    for (const auto& zone : zones)
        identifiers.append(zone.identifier());
    return {row.array("slots"), identifiers};
}

Comparison checkIncludeGuard(const VectorRow& row) {
    const auto guard = IncludeGuard::of(row.flag("includeDate"), row.flag("includeTime"));
    return {
        QJsonArray{row.flag("dateEnabled"), row.flag("timeEnabled")},
        QJsonArray{guard.dateEnabled, guard.timeEnabled}};
}

Comparison checkDefaultFavorites(const VectorRow& row) {
    return {
        row.array("expected"),
        QJsonArray::fromStringList(defaultFavoriteIdentifiers(row.zone("current"), row.zones()))};
}

} // namespace quorvane
