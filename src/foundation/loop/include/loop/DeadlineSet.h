// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>

#include <cstdint>
#include <map>

namespace quorvane {

/// Any number of tasks that are due later; destroying the set cancels those still pending.
class DeadlineSet {
public:
    DeadlineSet() = default;
    DeadlineSet(const DeadlineSet&) = delete;
    DeadlineSet& operator=(const DeadlineSet&) = delete;

    /// Runs `task` once, `delay` from now. The task may add to the set, cancel or destroy it.
    void run(MainQueue& queue, Seconds delay, MainQueue::Task task);

    void cancelAll();

    [[nodiscard]] bool isEmpty() const { return m_pending.empty(); }

private:
    std::map<std::uint64_t, Deadline> m_pending;
    std::uint64_t m_submitted = 0;
};

} // namespace quorvane
