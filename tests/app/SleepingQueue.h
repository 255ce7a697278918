// SPDX-License-Identifier: MIT
#pragma once

#include <testing/VirtualMainQueue.h>

#include <cstdint>
#include <map>
#include <memory>
#include <utility>
#include <vector>

namespace quorvane {

/// The main queue of a program that does not always run: what comes due while it sleeps runs when
/// it wakes, late and all at once.
class SleepingQueue final : public MainQueue {
public:
    /// The clock must outlive it, and it the tasks.
    explicit SleepingQueue(VirtualMainQueue& clock) : m_clock(clock) {}

    void async(Task task) override {
        m_clock.async([this, number = keep(std::move(task))] { take(number); });
    }

    [[nodiscard]] Deadline after(Seconds delay, Task task) override {
        const auto number = keep(std::move(task));
        auto due =
            std::make_shared<Deadline>(m_clock.after(delay, [this, number] { take(number); }));
        return Deadline([this, due = std::move(due), number] {
            due->cancel();
            m_tasks.erase(number);
        });
    }

    /// The clock goes on, the program does not.
    void sleep(Seconds span) {
        m_isAsleep = true;
        m_clock.advance(span);
        m_isAsleep = false;
        for (const auto number : std::exchange(m_due, {}))
            take(number);
    }

    /// How many tasks have run.
    [[nodiscard]] int ran() const { return m_ran; }

private:
    using Number = std::uint64_t;

    Number keep(Task task) {
        m_tasks.emplace(m_submitted, std::move(task));
        return m_submitted++;
    }

    void take(Number number) {
        if (m_isAsleep)
            return m_due.push_back(number);
        auto node = m_tasks.extract(number);
        if (!node)
            return;
        ++m_ran;
        node.mapped()();
    }

    VirtualMainQueue& m_clock;
    std::map<Number, Task> m_tasks;
    std::vector<Number> m_due; ///< while asleep
    Number m_submitted = 0;
    bool m_isAsleep = false;
    int m_ran = 0;
};

} // namespace quorvane
