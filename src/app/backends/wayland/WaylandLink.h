// SPDX-License-Identifier: MIT
#pragma once

#include <backends/DesktopSession.h>
#include <memory>
#include <wayland_server/WaylandConnection.h>
#include <wayland_server/WaylandSeats.h>
#include <wayland_sway/SwayLink.h>
#include <wayland_windows/WaylandToplevels.h>

namespace quorvane {

/// The compositor as the candidates use it: followed by the event loop from the first that asks.
class WaylandLink {
public:
    explicit WaylandLink(const DesktopSession& session);

    [[nodiscard]] const DesktopSession& session() const { return m_session; }

    [[nodiscard]] bool offers(std::string_view interface) const {
        return m_session.compositor.offers(interface);
    }

    /// Null where there is no compositor.
    [[nodiscard]] std::shared_ptr<WaylandConnection> connection();

    /// Only where there is a connection.
    [[nodiscard]] std::shared_ptr<WaylandSeats> seats();

    /// The same.
    [[nodiscard]] std::shared_ptr<WaylandToplevels> toplevels();

    /// Null where sway does not answer.
    [[nodiscard]] std::shared_ptr<SwayLink> sway();

private:
    DesktopSession m_session;
    bool m_isFollowed = false;
    std::shared_ptr<WaylandSeats> m_seats;
    std::shared_ptr<WaylandToplevels> m_toplevels;
    bool m_isSwayTried = false;
    std::shared_ptr<SwayLink> m_sway;
};

} // namespace quorvane
