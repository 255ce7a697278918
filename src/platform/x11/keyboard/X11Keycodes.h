// SPDX-License-Identifier: MIT
#pragma once

#include <platform/KeyCodes.h>

#include <xcb/xcb.h>

#include <limits>

namespace quorvane {

/// Keycodes of X servers that read the kernel's keyboards are the kernel's codes plus 8: the X
/// protocol keeps 0 to 7 for itself.
inline constexpr std::uint16_t evdevOffset = 8;

/// None for a key that X cannot name, which has only one byte for it.
[[nodiscard]] inline std::optional<xcb_keycode_t> x11KeycodeFrom(std::uint32_t keyCode) {
    const auto evdevCode = evdevFromKeyCode(keyCode);
    if (!evdevCode || *evdevCode > std::numeric_limits<xcb_keycode_t>::max() - evdevOffset)
        return std::nullopt;
    return static_cast<xcb_keycode_t>(*evdevCode + evdevOffset);
}

/// The inverse, for keycodes from 8 up.
[[nodiscard]] inline std::uint32_t keyCodeFromX11(xcb_keycode_t keycode) {
    return keyCodeFromEvdev(static_cast<std::uint16_t>(keycode - evdevOffset));
}

} // namespace quorvane
