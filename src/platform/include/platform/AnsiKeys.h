// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>

namespace quorvane {

/// A key of the layout that English is typed with in America.
struct AnsiKey {
    std::uint32_t keyCode = 0; ///< see KeyCodes.h
    char32_t character = 0;    ///< without modifiers
};

/// Every key that types a character there, the one that only ISO keyboards have included, space and
/// keypad excluded.
[[nodiscard]] std::span<const AnsiKey> ansiKeys();

/// 0 for a key that is not among them.
[[nodiscard]] char32_t ansiCharacterOf(std::uint32_t keyCode);

} // namespace quorvane
