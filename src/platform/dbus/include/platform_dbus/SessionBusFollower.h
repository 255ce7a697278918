// SPDX-License-Identifier: MIT
#pragma once

#include <platform_dbus/BusGreeting.h>

#include <QDBusConnection>
#include <QFileSystemWatcher>
#include <QObject>

#include <functional>
#include <memory>
#include <optional>

class QSocketNotifier;

namespace quorvane {

/// Connects to the session bus again when it has ended and another one listens at the same place,
/// or when one that was not there or did not answer comes to. Waits for events alone: the end of
/// the connection, a change in the folder of the bus' socket, its answer. A bus without a file for
/// its socket is not found again.
class SessionBusFollower final : public QObject {
    Q_OBJECT

public:
    using Connected = std::function<void(const QDBusConnection&)>;

    /// `onConnected` gets each later connection, never `bus` itself.
    SessionBusFollower(
        const QDBusConnection& bus, std::optional<BusSocket> socket, Connected onConnected);
    ~SessionBusFollower() override;

private Q_SLOTS:
    void lose();

private:
    void follow(const QDBusConnection& bus);
    void greet();
    void hear();
    void connectAnew();
    [[nodiscard]] QString connectionName() const;

    std::optional<BusSocket> m_socket;
    Connected m_onConnected;
    QFileSystemWatcher m_folder; ///< of the socket, while there is no bus
    std::unique_ptr<BusGreeting> m_greeting;
    std::unique_ptr<QSocketNotifier> m_words;
    int m_connections = 0;
};

} // namespace quorvane
