// SPDX-License-Identifier: MIT
#pragma once

namespace quorvane {

/// Which of the check boxes for date and time may be changed: the only one that is on may not, so
/// that one of them always stays on.
struct IncludeGuard {
    bool dateEnabled = true;
    bool timeEnabled = true;

    friend constexpr bool operator==(IncludeGuard, IncludeGuard) = default;

    [[nodiscard]] static IncludeGuard of(bool includeDate, bool includeTime);
};

} // namespace quorvane
