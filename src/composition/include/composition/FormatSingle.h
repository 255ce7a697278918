// SPDX-License-Identifier: MIT
#pragma once

#include <composition/DateFormatPreset.h>
#include <time/Instant.h>
#include <time/TimeZone.h>
#include <time/UserLocale.h>

#include <QString>

namespace quorvane {

/// What every text of one output has in common, besides the preset.
struct FormatSettings {
    bool includeDate = true;
    bool includeTime = true;
    QString customPattern; ///< UTS #35, for DateFormatPreset::Custom; taken as it is
    UserLocale locale;
};

/// One instant in one zone. With neither date nor time included, presets show the date alone,
/// except Medium and Short, which are then empty.
///
/// An instant that is not finite, or whose seconds exceed 64 bits, stops the process if the preset
/// is UnixTimestamp; the interface lets nobody enter such an instant.
[[nodiscard]] QString formatSingle(
    Instant instant, const TimeZone& zone, DateFormatPreset preset, const FormatSettings& settings);

} // namespace quorvane
