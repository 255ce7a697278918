// SPDX-License-Identifier: MIT
#pragma once

#include <x11_server/X11Connection.h>

#include <memory>

namespace quorvane {

/// A window that is never mapped, for conversations between clients. Its changes of properties are
/// reported.
class X11HiddenWindow {
public:
    explicit X11HiddenWindow(std::shared_ptr<X11Connection> connection);
    ~X11HiddenWindow();

    X11HiddenWindow(const X11HiddenWindow&) = delete;
    X11HiddenWindow& operator=(const X11HiddenWindow&) = delete;

    [[nodiscard]] xcb_window_t id() const { return m_id; }

private:
    std::shared_ptr<X11Connection> m_connection;
    xcb_window_t m_id;
};

} // namespace quorvane
