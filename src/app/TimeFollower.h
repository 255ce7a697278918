// SPDX-License-Identifier: MIT
#pragma once

#include <loop/Deadline.h>
#include <loop/MainQueue.h>
#include <platform/TimeChanges.h>
#include <time/Clock.h>
#include <time/CurrentZone.h>

#include <functional>

namespace quorvane {

/// Tells when what is shown about today, offsets and the user's zone may no longer be true: at each
/// midnight, and when clock or zone have been set.
class TimeFollower final {
public:
    /// All must outlive the follower.
    struct Dependencies {
        TimeChanges& changes;
        MainQueue& mainQueue;
        const Clock& clock;
        const CurrentZone& currentZone;
    };

    TimeFollower(Dependencies dependencies, std::function<void()> onChanged);
    ~TimeFollower();

    TimeFollower(const TimeFollower&) = delete;
    TimeFollower& operator=(const TimeFollower&) = delete;

private:
    void awaitMidnight();

    Dependencies m_dependencies;
    std::function<void()> m_onChanged;
    Deadline m_midnight;
};

} // namespace quorvane
