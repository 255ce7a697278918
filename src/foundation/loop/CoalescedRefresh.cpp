// SPDX-License-Identifier: MIT
#include <loop/CoalescedRefresh.h>

namespace quorvane {

CoalescedRefresh::CoalescedRefresh(MainQueue& queue, MainQueue::Task refresh)
    : m_queue(queue),
      m_state(std::make_shared<State>(State{std::move(refresh)})) {
}

void CoalescedRefresh::schedule() {
    if (m_state->due)
        return;
    m_state->due = true;
    m_queue.async([weak = std::weak_ptr(m_state)] {
        const auto state = weak.lock();
        if (!state || !state->due)
            return;
        state->due = false;
        state->refresh();
    });
}

void CoalescedRefresh::refreshNow() {
    const auto state = m_state;
    state->due = false;
    state->refresh();
}

} // namespace quorvane
