// SPDX-License-Identifier: MIT
#pragma once

#include <x11_server/X11Connection.h>

#include <memory>

namespace quorvane {

/// The time of the X server. Selections are owned and asked for by it: ICCCM 2.1 and 2.4 forbid
/// CurrentTime, with which nobody can tell an old request from a new one.
class X11ServerClock {
public:
    explicit X11ServerClock(std::shared_ptr<X11Connection> connection);

    /// Milliseconds, modulo 2^32; no event that the server sent so far is later. One round trip.
    [[nodiscard]] xcb_timestamp_t now() const;

private:
    std::shared_ptr<X11Connection> m_connection;
    std::uint32_t m_counter;
};

} // namespace quorvane
