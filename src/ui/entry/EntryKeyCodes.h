// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace quorvane::keycode {

inline constexpr std::uint32_t tab = 48;
inline constexpr std::uint32_t leftArrow = 123;
inline constexpr std::uint32_t rightArrow = 124;
inline constexpr std::uint32_t downArrow = 125;
inline constexpr std::uint32_t upArrow = 126;

} // namespace quorvane::keycode
