// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>
#include <wayland_kwin/PlasmaWindow.h>
#include <wayland_server/WaylandConnection.h>
#include <wayland_server/WaylandSubscription.h>

struct org_kde_plasma_window_management;

namespace quorvane {

/// The windows of all programs, by org_kde_plasma_window_management. KWin offers it to programs
/// whose desktop entry asks for it.
class PlasmaWindows {
public:
    static constexpr auto interfaceName = "org_kde_plasma_window_management";
    /// From here on windows are named by what never is another window's name.
    static constexpr std::uint32_t firstVersion = 13;

    explicit PlasmaWindows(std::shared_ptr<WaylandConnection> connection);
    ~PlasmaWindows();

    PlasmaWindows(const PlasmaWindows&) = delete;
    PlasmaWindows& operator=(const PlasmaWindows&) = delete;

    /// Whether the compositor tells of windows now.
    [[nodiscard]] bool isListed() const { return m_manager != nullptr; }

    /// Null for a window that is gone.
    [[nodiscard]] const PlasmaWindow* find(std::uint64_t id) const;

    /// The window that has the keyboard; null if none has, and where nobody tells.
    [[nodiscard]] const PlasmaWindow* active() const;

    /// The names of that window; none for none.
    [[nodiscard]] QStringList activeNames() const;

    /// Asks for the keyboard for a window; false if it is gone.
    [[nodiscard]] bool activate(std::uint64_t id);

    /// Called whenever a window has come, gone or changed; replaces an earlier handler.
    void onChanged(std::function<void()> handler) { m_changed = std::move(handler); }

private:
    struct Handle;
    struct Events;

    void add(const WaylandGlobal& global);
    void addWindow(const char* uuid);
    void end();
    void drop(const Handle& handle);
    [[nodiscard]] std::uint64_t idOf(const void* proxy) const;
    void tellChanged() const;

    std::shared_ptr<WaylandConnection> m_connection;
    org_kde_plasma_window_management* m_manager = nullptr;
    std::uint32_t m_global = 0;
    std::uint64_t m_lastId = 0;
    std::vector<std::unique_ptr<Handle>> m_handles;
    std::function<void()> m_changed;
    WaylandSubscription m_following;
    WaylandSubscription m_lost;
};

} // namespace quorvane
