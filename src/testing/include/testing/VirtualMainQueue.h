// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>

#include <chrono>
#include <cstdint>
#include <map>
#include <memory>
#include <utility>

namespace quorvane {

/// A main queue on a clock that only the test moves. Nothing runs outside run() and advance().
class VirtualMainQueue final : public MainQueue {
public:
    void async(Task task) override;
    [[nodiscard]] Deadline after(Seconds delay, Task task) override;

    /// Runs what is due now, and what that submits for now in turn.
    void run();

    /// Moves the clock on, running each task at its own time.
    void advance(Seconds span);

    /// Since the queue was made, in whole microseconds.
    [[nodiscard]] std::chrono::microseconds now() const { return m_now; }

    [[nodiscard]] bool isIdle() const { return m_tasks->empty(); }

private:
    using Time = std::chrono::microseconds;
    using Key = std::pair<Time, std::uint64_t>;

    Key enqueue(Time due, Task task);
    void runUntil(Time limit);

    Time m_now{0};
    std::uint64_t m_submitted = 0;
    std::shared_ptr<std::map<Key, Task>> m_tasks = std::make_shared<std::map<Key, Task>>();
};

} // namespace quorvane
