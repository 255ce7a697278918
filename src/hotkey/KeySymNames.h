// SPDX-License-Identifier: MIT
#pragma once

#include <platform/KeyboardLayout.h>

#include <QString>

#include <cstdint>
#include <optional>

namespace quorvane {

/// What the X Window System's table of key symbols, and so every configuration of a window manager,
/// calls the key: "d", "Page_Down", "F5". None where the layout has something else than a character
/// of ASCII on it, or cannot be asked.
[[nodiscard]] std::optional<QString>
keySymName(std::uint32_t keyCode, const KeyboardLayout& layout);

/// Likewise, of an ANSI keyboard; none for a key that it does not have.
[[nodiscard]] std::optional<QString> ansiKeySymName(std::uint32_t keyCode);

} // namespace quorvane
