// SPDX-License-Identifier: MIT
#pragma once

#include <loop/QtMainQueue.h>
#include <testing/VirtualMainQueue.h>

#include <utility>

namespace quorvane {

/// The main queue on Qt's event loop, but its delays pass only when the test moves the clock: other
/// programs may be as slow as the machine makes them, and a limit is met to the millisecond.
class SteppedMainQueue final : public MainQueue {
public:
    void async(Task task) override { m_soon.async(std::move(task)); }

    [[nodiscard]] Deadline after(Seconds delay, Task task) override {
        return delay > Seconds(0) ? m_delayed.after(delay, std::move(task))
                                  : m_soon.after(delay, std::move(task));
    }

    void advance(Seconds span) { m_delayed.advance(span); }

private:
    QtMainQueue m_soon;
    VirtualMainQueue m_delayed;
};

} // namespace quorvane
