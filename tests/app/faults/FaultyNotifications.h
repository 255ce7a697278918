// SPDX-License-Identifier: MIT
#pragma once

#include "FaultPlan.h"

#include <loop/MainQueue.h>
#include <platform/Notifications.h>

#include <memory>
#include <utility>

namespace quorvane {

/// A desktop whose notifications never answer, which is known at the last moment.
class FaultyNotifications final : public Notifications {
public:
    FaultyNotifications(std::unique_ptr<Notifications> real, FaultPlan& plan, MainQueue& queue)
        : m_real(std::move(real)),
          m_plan(plan),
          m_queue(queue) {}

    void show(Notification notification, Done done) override {
        if (!m_plan.strikes("Notifications::show"))
            return m_real->show(std::move(notification), std::move(done));
        m_answer = m_queue.after(
            Seconds(2), [done = std::move(done)] { done(NotificationOutcome::NoServer); });
    }

private:
    std::unique_ptr<Notifications> m_real;
    FaultPlan& m_plan;
    MainQueue& m_queue;
    Deadline m_answer;
};

} // namespace quorvane
