// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <array>
#include <optional>

namespace quorvane {

/// How the texts of several zones are put together.
enum class MultiZoneLayout {
    Inline, ///< on one line, parted by " / "
    Lines,  ///< one line each
};

inline constexpr std::array allMultiZoneLayouts{MultiZoneLayout::Inline, MultiZoneLayout::Lines};

/// The label, which is also the layout's identity.
[[nodiscard]] QString rawValue(MultiZoneLayout layout);

/// The layout with exactly this label; case matters.
[[nodiscard]] std::optional<MultiZoneLayout> multiZoneLayout(QStringView rawValue);

} // namespace quorvane
