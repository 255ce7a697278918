// SPDX-License-Identifier: MIT
#pragma once

#include <platform_dbus/BusSocket.h>

#include <QDBusConnection>
#include <QProcess>
#include <QTemporaryDir>

namespace quorvane {

/// A message bus of the test's own, which starts no services.
class PrivateBus {
public:
    PrivateBus();
    ~PrivateBus();

    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;

    /// A new connection, as another program would have it; closed at the end of the bus.
    [[nodiscard]] QDBusConnection connection();

    [[nodiscard]] BusSocket socket() const;

    /// Ends the bus as a crash would; its socket stays.
    void end();

    /// Starts another one in its place.
    void begin();

    void restart() {
        end();
        begin();
    }

    /// Keeps the bus from doing anything, until it may go on.
    void stop() const;
    void goOn() const;

private:
    QTemporaryDir m_folder;
    QProcess m_daemon;
    QString m_address;
    QStringList m_connections;
};

} // namespace quorvane
