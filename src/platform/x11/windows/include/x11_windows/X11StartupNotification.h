// SPDX-License-Identifier: MIT
#pragma once

#include <platform/StartupNotification.h>
#include <x11_server/X11Connection.h>

#include <memory>

namespace quorvane {

/// The Startup Notification Protocol's part of a program that was launched. It has nothing to do
/// for its windows: they ask for the focus at the time at which they show.
class X11StartupNotification final : public StartupNotification {
public:
    explicit X11StartupNotification(std::shared_ptr<X11Connection> connection);

    void begin(const ActivationToken& token) override;
    void end() override;

private:
    void broadcast(const QByteArray& message) const;

    std::shared_ptr<X11Connection> m_connection;
    QString m_startupId; ///< empty while nothing is under way
};

} // namespace quorvane
