// SPDX-License-Identifier: MIT
#include <composition/DefaultFavorites.h>
#include <hotkey/StoredHotKey.h>
#include <model/Preferences.h>
#include <settings/SettingsTable.h>

namespace quorvane {

namespace {

PresentationMode storedPresentationMode(const DefaultsStore& defaults) {
    const auto stored = presentationMode(setting::presentationMode.valueIn(defaults));
    return stored.value_or(
        presentationMode(QString(setting::presentationMode.defaultValue)).value());
}

} // namespace

Preferences Preferences::load(
    const DefaultsStore& defaults, const TimeZone& currentZone, const ZoneDatabase& zones) {
    auto favorites = setting::favoriteZones.storedIn(defaults);
    return {
        .favoriteTimeZoneIdentifiers =
            favorites ? *std::move(favorites) : defaultFavoriteIdentifiers(currentZone, zones),
        .hotKey = storedHotKey(defaults),
        .showInMenuBar = setting::showInMenuBar.valueIn(defaults),
        .showInDock = setting::showInDock.valueIn(defaults),
        .presentationMode = storedPresentationMode(defaults),
        .remembersChoices = setting::remembersChoices.valueIn(defaults),
        .shortcutHintDismissed = setting::shortcutHintDismissed.valueIn(defaults),
        .wantsTyping = setting::wantsTyping.valueIn(defaults)};
}

} // namespace quorvane
