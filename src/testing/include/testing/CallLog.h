// SPDX-License-Identifier: MIT
#pragma once

#include <testing/VirtualMainQueue.h>

#include <chrono>
#include <ostream>
#include <string>
#include <vector>

namespace quorvane {

/// Every call on the desktop, in order, with its time on the virtual clock.
class CallLog {
public:
    struct Call {
        std::chrono::milliseconds time;
        std::string what;

        friend bool operator==(const Call&, const Call&) = default;
    };

    explicit CallLog(const VirtualMainQueue& queue) : m_queue(queue) {}

    void add(std::string what) {
        m_calls.push_back(
            {std::chrono::duration_cast<std::chrono::milliseconds>(m_queue.now()),
             std::move(what)});
    }

    [[nodiscard]] const std::vector<Call>& calls() const { return m_calls; }

    void clear() { m_calls.clear(); }

private:
    const VirtualMainQueue& m_queue;
    std::vector<Call> m_calls;
};

/// For readable failures.
inline void PrintTo(const CallLog::Call& call, std::ostream* out) {
    *out << call.time.count() << " ms: " << call.what;
}

} // namespace quorvane
