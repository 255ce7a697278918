// SPDX-License-Identifier: MIT
#pragma once

#include <platform/Notifications.h>
#include <testing/CallLog.h>

#include <utility>

namespace quorvane {

/// A desktop that shows the last notification, or has nobody who would.
class FakeNotifications final : public Notifications {
public:
    FakeNotifications(CallLog& log, MainQueue& queue) : m_log(log), m_queue(queue) {}

    void show(Notification notification, Done done) override {
        m_log.add("notify");
        m_queue.async([this, notification = std::move(notification), done = std::move(done)] {
            if (hasServer)
                shown = notification;
            done(hasServer ? NotificationOutcome::Shown : NotificationOutcome::NoServer);
        });
    }

    bool hasServer = true;
    std::optional<Notification> shown;

private:
    CallLog& m_log;
    MainQueue& m_queue;
};

} // namespace quorvane
