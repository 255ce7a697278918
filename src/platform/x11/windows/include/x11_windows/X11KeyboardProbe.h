// SPDX-License-Identifier: MIT
#pragma once

#include <x11_server/X11Connection.h>
#include <x11_server/X11HiddenWindow.h>

#include <memory>
#include <utility>

namespace quorvane {

/// Tells whether another program has grabbed the keyboard, as screen locks and open menus do.
class X11KeyboardProbe {
public:
    explicit X11KeyboardProbe(std::shared_ptr<X11Connection> connection)
        : m_connection(std::move(connection)),
          m_neverViewable(m_connection) {}

    /// One round trip. Nobody gains or loses the focus by the question.
    [[nodiscard]] bool isGrabbedByAnother() const;

private:
    std::shared_ptr<X11Connection> m_connection;
    X11HiddenWindow m_neverViewable;
};

} // namespace quorvane
