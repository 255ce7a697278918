// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <array>
#include <optional>

namespace quorvane {

/// The formats on offer.
enum class DateFormatPreset {
    LongForm,
    MediumForm,
    ShortForm,
    Iso8601,
    Rfc2822,
    DateOnly,
    TimeOnly,
    WithDayOfWeek,
    UnixTimestamp,
    Custom,
};

/// In the order of every list that the user sees.
inline constexpr std::array allDateFormatPresets{
    DateFormatPreset::LongForm,
    DateFormatPreset::MediumForm,
    DateFormatPreset::ShortForm,
    DateFormatPreset::Iso8601,
    DateFormatPreset::Rfc2822,
    DateFormatPreset::DateOnly,
    DateFormatPreset::TimeOnly,
    DateFormatPreset::WithDayOfWeek,
    DateFormatPreset::UnixTimestamp,
    DateFormatPreset::Custom,
};

/// The preset's identity: the same in every language, for what is compared or stored.
[[nodiscard]] QString rawValue(DateFormatPreset preset);

/// The preset with exactly this raw value; case matters. For callers that store or name presets.
[[nodiscard]] std::optional<DateFormatPreset> dateFormatPreset(QStringView rawValue);

/// What a list calls the preset, in the language of the interface.
[[nodiscard]] QString translatedLabel(DateFormatPreset preset);

} // namespace quorvane
