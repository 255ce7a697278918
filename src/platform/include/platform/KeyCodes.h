// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>

namespace quorvane {

/// Key codes name positions on a keyboard, not characters: 2 is the key that carries D on an ANSI
/// keyboard, 9 V, 36 Return, 48 Tab, 53 Escape, 123 to 126 the arrows. Stored shortcuts hold them.
namespace keycode {

inline constexpr std::uint32_t d = 2;
inline constexpr std::uint32_t v = 9;
inline constexpr std::uint32_t returnKey = 36;
inline constexpr std::uint32_t escape = 53;

/// Keys that the table does not name have this plus their evdev code.
inline constexpr std::uint32_t unnamedBase = 0x100;

} // namespace keycode

/// The kernel's code (linux/input-event-codes.h) for a key code; none for a code that names no key.
[[nodiscard]] std::optional<std::uint16_t> evdevFromKeyCode(std::uint32_t keyCode);

/// The inverse: every evdev code has exactly one key code.
[[nodiscard]] std::uint32_t keyCodeFromEvdev(std::uint16_t evdevCode);

} // namespace quorvane
