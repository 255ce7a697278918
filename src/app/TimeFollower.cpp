// SPDX-License-Identifier: MIT
#include "TimeFollower.h"

#include <time/CivilTime.h>

#include <algorithm>
#include <utility>

namespace quorvane {

namespace {

// A clock that is set meanwhile must not keep the program busy.
constexpr Seconds leastDelay{1};

} // namespace

TimeFollower::TimeFollower(Dependencies dependencies, std::function<void()> onChanged)
    : m_dependencies(dependencies),
      m_onChanged(std::move(onChanged)) {
    m_dependencies.changes.onChanged([this] {
        awaitMidnight();
        m_onChanged();
    });
    awaitMidnight();
}

TimeFollower::~TimeFollower() {
    m_dependencies.changes.onChanged({});
}

void TimeFollower::awaitMidnight() {
    const auto now = m_dependencies.clock.now();
    const auto zone = m_dependencies.currentZone.current();
    const auto today = civilDay(now, zone);
    const auto midnight = instantAt({today + std::chrono::days(1), {}}, zone, now);
    const auto delay =
        std::max(leastDelay, Seconds(midnight.secondsSince1970 - now.secondsSince1970));
    m_midnight = m_dependencies.mainQueue.after(delay, [this, today, zone] {
        // Timers count milliseconds, and so may end just before.
        const bool isAnotherDay = civilDay(m_dependencies.clock.now(), zone) != today;
        awaitMidnight();
        if (isAnotherDay)
            m_onChanged();
    });
}

} // namespace quorvane
