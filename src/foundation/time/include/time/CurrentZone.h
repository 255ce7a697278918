// SPDX-License-Identifier: MIT
#pragma once

#include <time/TimeZone.h>

namespace quorvane {

/// The zone that the user's system is set to, asked anew at each call.
class CurrentZone {
public:
    virtual ~CurrentZone() = default;
    [[nodiscard]] virtual TimeZone current() const = 0;
};

} // namespace quorvane
