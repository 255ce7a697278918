// SPDX-License-Identifier: MIT
#pragma once

namespace quorvane {

/// What a zone's clocks show, against Greenwich.
struct LocalOffset {
    int seconds = 0; ///< east of Greenwich
    bool isDaylight = false;

    /// Whether a place can have it: what readers of zone files need to take (RFC 9636, 3.2).
    /// In milliseconds, too, all of these fit in 32 bits, which ICU counts them in.
    [[nodiscard]] constexpr bool isPossible() const {
        constexpr int hour = 3600;
        return seconds > -25 * hour && seconds < 26 * hour;
    }
};

} // namespace quorvane
