// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>

namespace quorvane {

/// What the keys are called that no layout names.
namespace acceleratorkeys {

/// Of a key that is called the same in every layout, such as Return or F5.
[[nodiscard]] std::optional<std::uint32_t> keysymOf(std::uint32_t keyCode);
[[nodiscard]] std::optional<std::uint32_t> keyCodeOf(std::uint32_t keysym);

} // namespace acceleratorkeys

} // namespace quorvane
