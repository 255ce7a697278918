// SPDX-License-Identifier: MIT
#pragma once

#include <x11_server/X11Connection.h>

namespace quorvane {

/// While it lives, the server carries out no other client's requests.
class X11ServerGrab {
public:
    explicit X11ServerGrab(X11Connection& connection) : m_connection(connection) {
        xcb_grab_server(m_connection.xcb());
    }

    ~X11ServerGrab() {
        xcb_ungrab_server(m_connection.xcb());
        m_connection.flush();
    }

    X11ServerGrab(const X11ServerGrab&) = delete;
    X11ServerGrab& operator=(const X11ServerGrab&) = delete;

private:
    X11Connection& m_connection;
};

} // namespace quorvane
