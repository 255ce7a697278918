// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <list>
#include <memory>
#include <vector>
#include <wayland_server/WaylandConnection.h>
#include <wayland_server/WaylandSubscription.h>

struct wl_seat;

namespace quorvane {

/// The seats of the compositor, each with keyboard, pointer and clipboards of its own. Nearly
/// always there is one.
class WaylandSeats {
public:
    explicit WaylandSeats(std::shared_ptr<WaylandConnection> connection);
    ~WaylandSeats();

    WaylandSeats(const WaylandSeats&) = delete;
    WaylandSeats& operator=(const WaylandSeats&) = delete;

    /// The one that came first, whose user we serve; null while there is none.
    [[nodiscard]] wl_seat* first() const;

    /// Called whenever first() is another seat, or none. What was made for the one before is of no
    /// use any more.
    [[nodiscard]] WaylandSubscription whenChanged(std::function<void()> handler);

private:
    using Handler = std::function<void()>;

    struct Destroyer {
        void operator()(wl_seat* seat) const;
    };

    struct Seat {
        std::uint32_t global = 0;
        std::unique_ptr<wl_seat, Destroyer> proxy;
    };

    void add(const WaylandGlobal& global);
    void remove(std::uint32_t global);
    void tell();

    std::shared_ptr<WaylandConnection> m_connection;
    std::vector<Seat> m_seats;
    std::list<std::weak_ptr<Handler>> m_handlers;
    WaylandSubscription m_following;
};

} // namespace quorvane
