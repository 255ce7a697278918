// SPDX-License-Identifier: MIT
#pragma once

#include <platform_dbus/BusSocket.h>

#include <QByteArray>

#include <chrono>
#include <optional>

namespace quorvane {

/// Keeps Qt away from a session bus that takes connections and does not answer. Qt connects to it
/// in many places (this program's services, accessibility, the tray, themes, input methods), all in
/// one thread that everybody waits for, without a limit: once one of them has begun, it is too
/// late. So make it before the application object, and call settle() after that is made.
class HungBusGuard {
public:
    /// Waits for the bus to answer, at most `patience`.
    HungBusGuard(const Environment& environment, std::chrono::milliseconds patience);

    /// From now on QDBusConnection::sessionBus() is, for the whole run, connected or not, and
    /// returns at once.
    void settle();

private:
    std::optional<QByteArray> m_hiddenAddress; ///< while the bus is kept from Qt
};

} // namespace quorvane
