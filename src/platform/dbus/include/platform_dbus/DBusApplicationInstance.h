// SPDX-License-Identifier: MIT
#pragma once

#include <platform/ApplicationInstance.h>
#include <platform_dbus/SessionBusFollower.h>

#include <QDBusConnection>
#include <QObject>
#include <QStringView>
#include <QVariantList>

#include <memory>
#include <optional>

class QDBusMessage;

namespace quorvane {

class FreedesktopApplication;

/// Finds the running process by its name on the session bus. Without a bus, every process is alone.
/// A process that runs when the bus starts anew, or comes late, asks for the name there, and gets
/// it at the latest when another one that was faster ends.
class DBusApplicationInstance final : public ApplicationInstance {
public:
    static constexpr QStringView serviceName = u"org.quorvane.Quorvane";
    static constexpr QStringView objectPath = u"/org/quorvane/Quorvane";

    /// `bus` is the session's, which listens at `socket` if that is known.
    DBusApplicationInstance(const QDBusConnection& bus, std::optional<BusSocket> socket);
    ~DBusApplicationInstance() override;

    DBusApplicationInstance(const DBusApplicationInstance&) = delete;
    DBusApplicationInstance& operator=(const DBusApplicationInstance&) = delete;

    [[nodiscard]] Role claim(Request request, const ActivationToken& token) override;
    void release() override;
    void onReopen(std::function<void(const ActivationToken&)> handler) override;
    void
    onAction(std::function<void(const QString& name, const ActivationToken&)> handler) override;

private:
    [[nodiscard]] Role claimOnce(Request request, const ActivationToken& token);

    /// False if the first process is gone and took the request with it.
    [[nodiscard]] bool activateFirst(const ActivationToken& token);

    /// Waits for the bus' own answer, within bounds.
    [[nodiscard]] QDBusMessage askBus(const QString& method, const QVariantList& arguments);

    void serve(const QDBusConnection& bus);

    QDBusConnection m_bus;
    std::optional<BusSocket> m_socket;
    QObject m_object;
    FreedesktopApplication* m_application;          ///< owned by m_object
    std::unique_ptr<SessionBusFollower> m_follower; ///< once it is the first, or alone
};

} // namespace quorvane
