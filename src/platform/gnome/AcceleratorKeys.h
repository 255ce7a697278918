// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <span>

namespace quorvane {

/// What the keys are called that a layout does not name, and what an ANSI keyboard types.
namespace acceleratorkeys {

struct AnsiKey {
    std::uint32_t keyCode;
    char32_t character; ///< without modifiers
};

/// Every key that types something, keypad excluded.
[[nodiscard]] std::span<const AnsiKey> charactersOfAnsi();

/// 0 for a key that types nothing there.
[[nodiscard]] char32_t ansiCharacterOf(std::uint32_t keyCode);

/// Of a key that is called the same in every layout, such as Return or F5.
[[nodiscard]] std::optional<std::uint32_t> keysymOf(std::uint32_t keyCode);
[[nodiscard]] std::optional<std::uint32_t> keyCodeOf(std::uint32_t keysym);

} // namespace acceleratorkeys

} // namespace quorvane
