// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>
#include <wayland_server/WaylandConnection.h>
#include <wayland_server/WaylandSeats.h>
#include <wayland_server/WaylandSubscription.h>
#include <wayland_windows/WaylandToplevel.h>

struct zwlr_foreign_toplevel_manager_v1;

namespace quorvane {

/// The windows of all programs, by zwlr_foreign_toplevel_manager_v1.
class WaylandToplevels {
public:
    /// The global by which a compositor offers the list.
    static constexpr auto interfaceName = "zwlr_foreign_toplevel_manager_v1";

    WaylandToplevels(
        std::shared_ptr<WaylandConnection> connection, std::shared_ptr<WaylandSeats> seats);
    ~WaylandToplevels();

    WaylandToplevels(const WaylandToplevels&) = delete;
    WaylandToplevels& operator=(const WaylandToplevels&) = delete;

    /// Whether the compositor tells of windows now.
    [[nodiscard]] bool isListed() const;

    /// Null for a window that is gone.
    [[nodiscard]] const WaylandToplevel* find(std::uint64_t id) const;

    /// The window that has the keyboard; null if none has, and where nobody tells.
    [[nodiscard]] const WaylandToplevel* activated() const;

    /// The names of that window; none for none.
    [[nodiscard]] QStringList activatedNames() const;

    /// Asks for the keyboard for a window; false if it is gone, or there is no seat to give it.
    [[nodiscard]] bool activate(std::uint64_t id);

    /// Called whenever a window has come, gone or changed; replaces an earlier handler.
    void onChanged(std::function<void()> handler) { m_changed = std::move(handler); }

private:
    struct Handle;
    struct Events;

    void add(const WaylandGlobal& global);
    void end(bool isFinished);
    void dropHandle(const Handle& handle);
    [[nodiscard]] std::uint64_t idOf(const void* proxy) const;
    void tellChanged() const;

    std::shared_ptr<WaylandConnection> m_connection;
    std::shared_ptr<WaylandSeats> m_seats;
    zwlr_foreign_toplevel_manager_v1* m_manager = nullptr;
    std::uint32_t m_global = 0;
    std::uint64_t m_lastId = 0;
    std::vector<std::unique_ptr<Handle>> m_handles; ///< the oldest first
    std::function<void()> m_changed;
    WaylandSubscription m_following;
    WaylandSubscription m_lost;
};

} // namespace quorvane
