// SPDX-License-Identifier: MIT
#pragma once

#include <platform/StartupNotification.h>

namespace quorvane {

/// What the desktop has sent the user here for is done while this lives.
class StartupScope {
public:
    /// `notification` must outlive this.
    StartupScope(StartupNotification& notification, const ActivationToken& token)
        : m_notification(notification) {
        m_notification.begin(token);
    }

    ~StartupScope() { m_notification.end(); }

    StartupScope(const StartupScope&) = delete;
    StartupScope& operator=(const StartupScope&) = delete;

private:
    StartupNotification& m_notification;
};

} // namespace quorvane
