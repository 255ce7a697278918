// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

namespace quorvane {

/// The keys and pointer buttons that the user holds down, by the desktop's own numbers.
struct HeldInput {
    std::vector<std::uint8_t> keys; ///< lowest first
    std::uint8_t buttons = 0;       ///< a bit for each

    /// Whether there is a button that was not held before.
    [[nodiscard]] bool hasButtonSince(const HeldInput& before) const {
        return (buttons & ~before.buttons) != 0;
    }

    /// Whether there is a key that was not held before.
    [[nodiscard]] bool hasKeySince(const HeldInput& before) const {
        return !std::ranges::includes(before.keys, keys);
    }
};

} // namespace quorvane
