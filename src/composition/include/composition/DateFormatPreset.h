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

/// The label, which is also the preset's identity.
[[nodiscard]] QString rawValue(DateFormatPreset preset);

/// The preset with exactly this label; case matters.
[[nodiscard]] std::optional<DateFormatPreset> dateFormatPreset(QStringView rawValue);

} // namespace quorvane
