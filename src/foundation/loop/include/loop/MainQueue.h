// SPDX-License-Identifier: MIT
#pragma once

#include <loop/Deadline.h>
#include <loop/Seconds.h>

#include <functional>

namespace quorvane {

/// Work for a later iteration of the event loop. Everything runs on the main thread.
class MainQueue {
public:
    using Task = std::function<void()>;

    virtual ~MainQueue() = default;

    /// Runs `task` in a later iteration of the event loop; tasks keep the order of their
    /// submission.
    virtual void async(Task task) = 0;

    /// Runs `task` once, `delay` from now, to the millisecond. Dropping the handle cancels it.
    [[nodiscard]] virtual Deadline after(Seconds delay, Task task) = 0;
};

} // namespace quorvane
