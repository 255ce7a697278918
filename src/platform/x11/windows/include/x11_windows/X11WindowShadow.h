// SPDX-License-Identifier: MIT
#pragma once

#include <x11_server/X11Connection.h>

#include <QMargins>
#include <QSize>

#include <memory>

namespace quorvane {

/// A shadow that a window draws around itself, inside of its own edges. All in the server's pixels.
class X11WindowShadow {
public:
    explicit X11WindowShadow(std::shared_ptr<X11Connection> connection)
        : m_connection(std::move(connection)) {}

    /// Tells the window manager that so much at each edge is shadow, and has the pointer see what
    /// is below it.
    void set(xcb_window_t window, QSize size, const QMargins& margins) const;

private:
    std::shared_ptr<X11Connection> m_connection;
};

} // namespace quorvane
