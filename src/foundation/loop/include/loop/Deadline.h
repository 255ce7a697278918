// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <utility>

namespace quorvane {

/// Owns a task that is due later: destroying the handle before then cancels the task.
class [[nodiscard]] Deadline {
public:
    using Cancel = std::function<void()>;

    Deadline() = default;

    explicit Deadline(Cancel cancel) : m_cancel(std::move(cancel)) {}

    Deadline(Deadline&& other) noexcept : m_cancel(std::exchange(other.m_cancel, nullptr)) {}

    Deadline& operator=(Deadline&& other) noexcept {
        if (this != &other) {
            cancel();
            m_cancel = std::exchange(other.m_cancel, nullptr);
        }
        return *this;
    }

    Deadline(const Deadline&) = delete;
    Deadline& operator=(const Deadline&) = delete;

    ~Deadline() { cancel(); }

    /// Safe after the task has run, and while it runs.
    void cancel() {
        if (auto cancelTask = std::exchange(m_cancel, nullptr))
            cancelTask();
    }

private:
    Cancel m_cancel;
};

} // namespace quorvane
