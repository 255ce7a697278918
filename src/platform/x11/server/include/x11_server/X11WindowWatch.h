// SPDX-License-Identifier: MIT
#pragma once

#include <x11_server/X11Connection.h>

#include <cstdint>
#include <memory>

namespace quorvane {

/// Subscribes to property changes and to the destruction of another program's window, for as long
/// as the watch lives. Events that we had selected on the window before stay selected.
class X11WindowWatch {
public:
    /// Null where the window is gone.
    [[nodiscard]] static std::unique_ptr<X11WindowWatch>
    start(std::shared_ptr<X11Connection> connection, xcb_window_t window);

    ~X11WindowWatch();

    X11WindowWatch(const X11WindowWatch&) = delete;
    X11WindowWatch& operator=(const X11WindowWatch&) = delete;

private:
    X11WindowWatch(
        std::shared_ptr<X11Connection> connection, xcb_window_t window, std::uint32_t before);

    void select(std::uint32_t events) const;

    std::shared_ptr<X11Connection> m_connection;
    xcb_window_t m_window;
    std::uint32_t m_before;
};

} // namespace quorvane
