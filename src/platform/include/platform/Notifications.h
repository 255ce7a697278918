// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>
#include <optional>

namespace quorvane {

/// What the user is told outside our own windows.
struct Notification {
    /// What the user can do about it.
    struct Action {
        QString label;
        std::function<void()> perform;
    };

    QString title;
    QString body; ///< plain text
    /// Left out where the desktop's notifications have no buttons.
    std::optional<Action> action;
};

/// What became of a notification.
enum class NotificationOutcome {
    Shown,
    NoServer, ///< nobody shows notifications, or does not answer
};

/// The notifications of the desktop.
class Notifications {
public:
    using Done = std::function<void(NotificationOutcome)>;

    virtual ~Notifications() = default;

    /// Shows it in place of an earlier one: there is never more than one of ours on the screen.
    /// `done` runs once, in a later iteration of the event loop, at most two seconds from now; not
    /// at all for one that the next one overtakes before it is shown.
    virtual void show(Notification notification, Done done) = 0;
};

} // namespace quorvane
