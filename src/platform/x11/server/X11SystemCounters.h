// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace quorvane {

/// The counter of a name in the list that the server has sent (X Synchronization Extension, the
/// encoding of SYSTEMCOUNTER); none where it is not there, or the list ends in the middle of one.
///
/// xcb 1.15 walks the list by the size that the compiler gives the structure, which is wrong for
/// names of certain lengths: those of devices with a number of two digits.
[[nodiscard]] std::optional<std::uint32_t>
systemCounter(std::span<const std::byte> list, std::string_view name);

} // namespace quorvane
