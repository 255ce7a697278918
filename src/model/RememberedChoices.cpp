// SPDX-License-Identifier: MIT
#include <loop/Failure.h>
#include <model/RememberedChoices.h>
#include <settings/SettingsTable.h>

#include <algorithm>

namespace quorvane::rememberedchoices {

using namespace Qt::StringLiterals;

namespace {

/// The stored text as one of the values that have a text.
template <typename Value, typename Setting>
void recallNamed(
    Value& field,
    const Setting& setting,
    std::optional<Value> (*named)(QStringView),
    const DefaultsStore& defaults) {
    const auto stored = setting.storedIn(defaults);
    if (!stored)
        return;
    if (const auto value = named(*stored))
        field = *value;
    else
        reportFailure(u"the stored %1 is none and is ignored: %2"_s.arg(setting.key, *stored));
}

void recallParts(Composition& composition, const DefaultsStore& defaults) {
    const bool date = setting::includeDate.valueIn(defaults);
    const bool time = setting::includeTime.valueIn(defaults);
    if (!date && !time) {
        reportFailure(u"the stored %1 and %2 leave nothing to show and are ignored"_s.arg(
            setting::includeDate.key, setting::includeTime.key));
        return;
    }
    composition.includeDate = date;
    composition.includeTime = time;
}

void recallZones(
    Composition& composition, const DefaultsStore& defaults, const ZoneDatabase& database) {
    const auto stored = setting::selectedZones.storedIn(defaults);
    if (!stored)
        return;
    QStringList unknown;
    std::vector<TimeZone> zones;
    for (const auto& identifier : *stored) {
        const auto zone = database.zone(database.listedName(identifier));
        if (!zone)
            unknown.append(identifier);
        else if (std::ranges::find(zones, *zone) == zones.end())
            zones.push_back(*zone);
    }
    if (!unknown.isEmpty())
        reportFailure(u"the stored %1 that are no zones are ignored: %2"_s.arg(
            setting::selectedZones.key, unknown.join(u", ")));
    // A selection that the user has emptied stays empty, one of nothing but rubbish is none.
    if (!zones.empty() || unknown.isEmpty())
        composition.selectedTimeZones = zones;
}

} // namespace

void store(const Composition& composition, DefaultsStore& defaults) {
    defaults.setTogether([&] {
        setting::formatPreset.store(defaults, rawValue(composition.formatPreset));
        setting::customFormat.store(defaults, composition.customFormatString);
        setting::multiZoneLayout.store(defaults, rawValue(composition.multiZoneLayout));
        setting::includeDate.store(defaults, composition.includeDate);
        setting::includeTime.store(defaults, composition.includeTime);
        setting::selectedZones.store(defaults, zoneIdentifiers(composition));
    });
}

QStringList zoneIdentifiers(const Composition& composition) {
    QStringList identifiers;
    for (const auto& zone : composition.selectedTimeZones)
        identifiers.append(zone.identifier());
    return identifiers;
}

void recall(Composition& composition, const DefaultsStore& defaults, const ZoneDatabase& zones) {
    recallNamed(composition.formatPreset, setting::formatPreset, &dateFormatPreset, defaults);
    recallNamed(composition.multiZoneLayout, setting::multiZoneLayout, &multiZoneLayout, defaults);
    composition.customFormatString =
        setting::customFormat.storedIn(defaults).value_or(composition.customFormatString);
    recallParts(composition, defaults);
    recallZones(composition, defaults, zones);
}

} // namespace quorvane::rememberedchoices
