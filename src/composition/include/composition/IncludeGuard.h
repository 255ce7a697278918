// SPDX-License-Identifier: MIT
#pragma once

namespace quorvane {

/// Which of the switches for date and time may be used: the one that is on alone may not, so that
/// the user never turns off both.
struct IncludeGuard {
    bool dateEnabled = true;
    bool timeEnabled = true;

    friend constexpr bool operator==(IncludeGuard, IncludeGuard) = default;

    [[nodiscard]] static IncludeGuard of(bool includeDate, bool includeTime);
};

} // namespace quorvane
