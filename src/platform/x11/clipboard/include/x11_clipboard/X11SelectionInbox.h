// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>
#include <x11_server/X11Connection.h>
#include <x11_server/X11HiddenWindow.h>

#include <deque>
#include <memory>
#include <vector>

namespace quorvane {

/// The window on which the owners of selections leave what they are asked for, each answer in a
/// property of its own. It lives as long as the process: an owner that answers late, to a window
/// that is gone, gets an error that many programs do not survive.
class X11SelectionInbox {
public:
    /// Properties whose answer is still awaited although nobody wants it; one more, and the oldest
    /// is used anew.
    static constexpr std::size_t mostAbandoned = 32;
    /// Increments that are thrown away for one owner; it is left alone with the others.
    static constexpr int mostDiscards = 4096;

    /// The queue must outlive it.
    X11SelectionInbox(std::shared_ptr<X11Connection> connection, MainQueue& queue);

    [[nodiscard]] const std::shared_ptr<X11Connection>& connection() const { return m_connection; }

    [[nodiscard]] MainQueue& queue() const { return m_queue; }

    [[nodiscard]] xcb_window_t window() const { return m_window.id(); }

    /// A property that nobody else writes to, until it is given back or abandoned.
    [[nodiscard]] xcb_atom_t lease();

    /// The answer has come to its end.
    void giveBack(xcb_atom_t property);

    /// The answer is no longer wanted, but may still come: it is thrown away then.
    void abandon(xcb_atom_t property);

    /// Throws away what the property holds.
    void discard(xcb_atom_t property);

private:
    struct Abandoned {
        xcb_atom_t property;
        int discards = 0;
    };

    void handle(const xcb_generic_event_t& event);

    std::shared_ptr<X11Connection> m_connection;
    MainQueue& m_queue;
    X11HiddenWindow m_window;
    std::vector<xcb_atom_t> m_spare;
    std::deque<Abandoned> m_abandoned; ///< the oldest first
    int m_made = 0;
    X11Connection::Subscription m_subscription;
};

} // namespace quorvane
