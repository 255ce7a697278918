// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <array>
#include <optional>

namespace quorvane {

/// Where the panel shows.
enum class PresentationMode {
    Popover, ///< under the icon in the menu bar
    Window,  ///< as a window of its own
};

inline constexpr std::array allPresentationModes{
    PresentationMode::Popover, PresentationMode::Window};

/// The mode's identity and its stored form. Nothing shows it to the user.
[[nodiscard]] QString rawValue(PresentationMode mode);

/// The mode with exactly this raw value; case matters.
[[nodiscard]] std::optional<PresentationMode> presentationMode(QStringView rawValue);

} // namespace quorvane
