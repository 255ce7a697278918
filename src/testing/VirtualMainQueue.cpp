// SPDX-License-Identifier: MIT
#include <testing/VirtualMainQueue.h>

#include <cmath>

namespace quorvane {

namespace {

std::chrono::microseconds rounded(Seconds span) {
    return std::chrono::microseconds(std::llround(span.count() * 1e6));
}

} // namespace

void VirtualMainQueue::async(Task task) {
    enqueue(m_now, std::move(task));
}

Deadline VirtualMainQueue::after(Seconds delay, Task task) {
    const auto key = enqueue(m_now + rounded(delay), std::move(task));
    return Deadline([weak = std::weak_ptr(m_tasks), key] {
        if (const auto tasks = weak.lock())
            tasks->erase(key);
    });
}

void VirtualMainQueue::run() {
    runUntil(m_now);
}

void VirtualMainQueue::advance(Seconds span) {
    const auto limit = m_now + rounded(span);
    runUntil(limit);
    m_now = limit;
}

VirtualMainQueue::Key VirtualMainQueue::enqueue(Time due, Task task) {
    const Key key{due, m_submitted++};
    m_tasks->emplace(key, std::move(task));
    return key;
}

void VirtualMainQueue::runUntil(Time limit) {
    while (!m_tasks->empty() && m_tasks->begin()->first.first <= limit) {
        auto node = m_tasks->extract(m_tasks->begin());
        m_now = node.key().first;
        node.mapped()();
    }
}

} // namespace quorvane
