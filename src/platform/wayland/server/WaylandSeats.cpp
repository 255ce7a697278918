// SPDX-License-Identifier: MIT
#include <algorithm>
#include <utility>
#include <wayland-client-protocol.h>
#include <wayland_server/WaylandSeats.h>

namespace quorvane {

namespace {

// From 5 on a seat can be given back.
constexpr std::uint32_t knownVersion = 5;

} // namespace

void WaylandSeats::Destroyer::operator()(wl_seat* seat) const {
    if (wl_seat_get_version(seat) >= WL_SEAT_RELEASE_SINCE_VERSION)
        wl_seat_release(seat);
    else
        wl_seat_destroy(seat);
}

WaylandSeats::WaylandSeats(std::shared_ptr<WaylandConnection> connection)
    : m_connection(std::move(connection)) {
    m_following = m_connection->globals().follow(
        wl_seat_interface.name,
        {[this](const WaylandGlobal& global) { add(global); },
         [this](std::uint32_t global) {
             remove(global);
         }});
}

WaylandSeats::~WaylandSeats() = default;

wl_seat* WaylandSeats::first() const {
    return m_seats.empty() ? nullptr : m_seats.front().proxy.get();
}

WaylandSubscription WaylandSeats::whenChanged(std::function<void()> handler) {
    auto shared = std::make_shared<Handler>(std::move(handler));
    m_handlers.push_back(shared);
    return WaylandSubscription(std::move(shared));
}

void WaylandSeats::add(const WaylandGlobal& global) {
    auto* seat = m_connection->globals().bind<wl_seat>(global, wl_seat_interface, knownVersion);
    m_seats.push_back({global.name, std::unique_ptr<wl_seat, Destroyer>(seat)});
    if (m_seats.size() == 1)
        tell();
}

void WaylandSeats::remove(std::uint32_t global) {
    const auto found = std::ranges::find(m_seats, global, &Seat::global);
    if (found == m_seats.end())
        return;
    const bool wasFirst = found == m_seats.begin();
    // Alive until what was made for it has gone.
    const auto gone = std::move(*found);
    m_seats.erase(found);
    if (wasFirst)
        tell();
}

void WaylandSeats::tell() {
    m_handlers.remove_if([](const auto& weak) { return weak.expired(); });
    const auto handlers = m_handlers;
    for (const auto& weak : handlers) {
        if (const auto handler = weak.lock())
            (*handler)();
    }
}

} // namespace quorvane
