// SPDX-License-Identifier: MIT
#include "MemoryFile.h"
#include "Samples.h"

#include <composition/ComposedOutput.h>
#include <composition/ZoneSlots.h>
#include <model/Preferences.h>
#include <model/RememberedChoices.h>
#include <settings/JsonDefaultsStore.h>
#include <settings/SettingsTable.h>
#include <settings/WindowFrameStore.h>
#include <testing/FixedCurrentZone.h>
#include <testing/MemoryDefaults.h>
#include <testing/RecordingSettingsWriter.h>

#include <limits>

using namespace quorvane;

namespace {

Composition recalled(const DefaultsStore& defaults) {
    Composition composition;
    rememberedchoices::recall(composition, defaults, samples::zones());
    return composition;
}

void checkChoices(const DefaultsStore& defaults) {
    const auto composition = recalled(defaults);
    demand(composition.includeDate || composition.includeTime, "something is shown");
    MemoryDefaults stored;
    rememberedchoices::store(composition, stored);
    const auto again = recalled(stored);
    demand(
        again.formatPreset == composition.formatPreset &&
            again.customFormatString == composition.customFormatString &&
            again.multiZoneLayout == composition.multiZoneLayout &&
            again.includeDate == composition.includeDate &&
            again.includeTime == composition.includeTime &&
            again.selectedTimeZones == composition.selectedTimeZones,
        "what is stored comes back");
    const OutputRequest request{
        .preset = composition.formatPreset,
        .settings =
            {.includeDate = composition.includeDate,
             .includeTime = composition.includeTime,
             .customPattern = composition.customFormatString,
             .locale = UserLocale::named(QStringLiteral("en_US"))},
        .zones = composition.selectedTimeZones,
        .start = {},
        .end = {},
        .layout = composition.multiZoneLayout};
    (void) composedOutput(request, FixedCurrentZone(ZoneDatabase::utc()));
}

void checkPreferences(const DefaultsStore& defaults) {
    const auto preferences = Preferences::load(defaults, ZoneDatabase::utc(), samples::zones());
    demand(
        preferences.hotKey.keyCode <= std::numeric_limits<std::uint16_t>::max(),
        "the shortcut is a key");
    (void) timeZoneSlots(preferences.favoriteTimeZoneIdentifiers, {}, samples::zones());
    (void) setting::typingToken.valueIn(defaults);
}

void checkFrames(const QString& path, RecordingSettingsWriter& writer) {
    const WindowFrameStore frames(path, writer);
    for (const auto& name : {QStringLiteral("Panel"), QString()}) {
        const auto frame = frames.frame(name);
        demand(!frame || (frame->isValid() && frame->right() >= frame->left()), "frames have area");
    }
}

} // namespace

/// Any bytes in the files of settings and of window frames.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const MemoryFile file;
    file.replace(FuzzInput(data, size).rest());
    RecordingSettingsWriter writer;
    {
        JsonDefaultsStore store(file.path(), writer);
        checkPreferences(store);
        checkChoices(store);
        setting::customFormat.store(store, QStringLiteral("yyyy"));
        demand(
            setting::customFormat.storedIn(store) == QStringLiteral("yyyy"), "a value can be set");
    }
    checkFrames(file.path(), writer);
    return 0;
}
