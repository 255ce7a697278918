// SPDX-License-Identifier: MIT
#pragma once

#include <platform/ApplicationInstance.h>

#include <QDBusConnection>
#include <QObject>
#include <QStringView>

namespace quorvane {

class FreedesktopApplication;

/// Finds the running process by its name on the session bus. Without a bus, every process is alone.
class DBusApplicationInstance final : public ApplicationInstance {
public:
    static constexpr QStringView serviceName = u"org.quorvane.Quorvane";
    static constexpr QStringView objectPath = u"/org/quorvane/Quorvane";

    DBusApplicationInstance();
    ~DBusApplicationInstance() override;

    DBusApplicationInstance(const DBusApplicationInstance&) = delete;
    DBusApplicationInstance& operator=(const DBusApplicationInstance&) = delete;

    [[nodiscard]] Role claim() override;
    void release() override;
    void onReopen(std::function<void()> handler) override;
    void onAction(std::function<void(const QString& name)> handler) override;

private:
    /// False if the first process is gone and took the request with it.
    [[nodiscard]] bool activateFirst();

    QDBusConnection m_bus;
    QObject m_object;
    FreedesktopApplication* m_application; ///< owned by m_object
};

} // namespace quorvane
