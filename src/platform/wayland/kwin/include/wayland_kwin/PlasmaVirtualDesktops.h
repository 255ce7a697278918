// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>
#include <wayland_server/WaylandConnection.h>
#include <wayland_server/WaylandSubscription.h>

struct org_kde_plasma_virtual_desktop_management;

namespace quorvane {

/// Which virtual desktop is in front, by org_kde_plasma_virtual_desktop_management.
class PlasmaVirtualDesktops {
public:
    static constexpr auto interfaceName = "org_kde_plasma_virtual_desktop_management";

    explicit PlasmaVirtualDesktops(std::shared_ptr<WaylandConnection> connection);
    ~PlasmaVirtualDesktops();

    PlasmaVirtualDesktops(const PlasmaVirtualDesktops&) = delete;
    PlasmaVirtualDesktops& operator=(const PlasmaVirtualDesktops&) = delete;

    /// Empty where nobody tells.
    [[nodiscard]] const QString& current() const { return m_current; }

    /// Called whenever current() is another one; replaces an earlier handler.
    void onChanged(std::function<void()> handler) { m_changed = std::move(handler); }

private:
    struct Desktop;
    struct Events;

    void add(const WaylandGlobal& global);
    void addDesktop(const char* id);
    void drop(const QString& id);
    void end();
    void setCurrent(const QString& id);

    std::shared_ptr<WaylandConnection> m_connection;
    org_kde_plasma_virtual_desktop_management* m_manager = nullptr;
    std::uint32_t m_global = 0;
    std::vector<std::unique_ptr<Desktop>> m_desktops;
    QString m_current;
    std::function<void()> m_changed;
    WaylandSubscription m_following;
    WaylandSubscription m_lost;
};

} // namespace quorvane
