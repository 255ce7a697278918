// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <array>
#include <optional>

namespace quorvane {

/// How the texts of several zones are put together.
enum class MultiZoneLayout {
    Inline, ///< on one line, separated by " / "
    Lines,  ///< one line each
};

inline constexpr std::array allMultiZoneLayouts{MultiZoneLayout::Inline, MultiZoneLayout::Lines};

/// The layout's identity: the same in every language, for what is compared or stored.
[[nodiscard]] QString rawValue(MultiZoneLayout layout);

/// The layout with exactly this raw value; case matters. For callers that store or name layouts.
[[nodiscard]] std::optional<MultiZoneLayout> multiZoneLayout(QStringView rawValue);

/// What a list calls the layout, in the language of the interface.
[[nodiscard]] QString translatedLabel(MultiZoneLayout layout);

} // namespace quorvane
