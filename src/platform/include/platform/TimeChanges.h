// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace quorvane {

/// What happens to the system's clock and zone beside the passing of time.
class TimeChanges {
public:
    virtual ~TimeChanges() = default;

    /// Called after the clock was set, the zone was set, or the machine woke up, though it may show
    /// the same as before; replaces an earlier handler.
    virtual void onChanged(std::function<void()> handler) = 0;
};

} // namespace quorvane
