// SPDX-License-Identifier: MIT
#include <loop/DeadlineSet.h>

namespace quorvane {

void DeadlineSet::run(MainQueue& queue, Seconds delay, MainQueue::Task task) {
    const auto number = m_submitted++;
    auto deadline = queue.after(delay, [this, number, task = std::move(task)] {
        m_pending.erase(number);
        task(); // Last: the set may be gone afterwards.
    });
    m_pending.emplace(number, std::move(deadline));
}

void DeadlineSet::cancelAll() {
    m_pending.clear();
}

} // namespace quorvane
