// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>

#include <memory>

namespace quorvane {

/// Turns a burst of reasons to refresh into one refresh in a later iteration of the event loop.
/// Destroying it drops a refresh that is still due.
class CoalescedRefresh {
public:
    CoalescedRefresh(MainQueue& queue, MainQueue::Task refresh);

    /// Does nothing while a refresh is due; what the refresh itself schedules comes after it.
    void schedule();

    /// Refreshes at once, which covers a refresh that is due.
    void refreshNow();

private:
    struct State {
        MainQueue::Task refresh;
        bool due = false;
    };

    MainQueue& m_queue;
    std::shared_ptr<State> m_state;
};

} // namespace quorvane
