// SPDX-License-Identifier: MIT
#pragma once

#include <x11_server/X11Connection.h>
#include <x11_server/X11HiddenWindow.h>

#include <memory>
#include <set>
#include <vector>

namespace quorvane {

/// The window on which the owners of selections leave what they are asked for, each answer in a
/// property of its own. It lives as long as the process: an owner that answers late, to a window
/// that is gone, gets an error that many programs do not survive.
class X11SelectionInbox {
public:
    explicit X11SelectionInbox(std::shared_ptr<X11Connection> connection);

    [[nodiscard]] const std::shared_ptr<X11Connection>& connection() const { return m_connection; }

    [[nodiscard]] xcb_window_t window() const { return m_window.id(); }

    /// A property that nobody else writes to, until it is given back or abandoned.
    [[nodiscard]] xcb_atom_t lease();

    /// The answer has come to its end.
    void giveBack(xcb_atom_t property);

    /// The answer is no longer wanted, but may still come: it is thrown away then.
    void abandon(xcb_atom_t property);

private:
    void handle(const xcb_generic_event_t& event);

    std::shared_ptr<X11Connection> m_connection;
    X11HiddenWindow m_window;
    std::vector<xcb_atom_t> m_spare;
    std::set<xcb_atom_t> m_abandoned;
    int m_made = 0;
    X11Connection::Subscription m_subscription;
};

} // namespace quorvane
