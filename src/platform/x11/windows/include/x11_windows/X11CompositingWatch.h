// SPDX-License-Identifier: MIT
#pragma once

#include <x11_server/X11Connection.h>

#include <functional>
#include <memory>

namespace quorvane {

/// Whether a compositing manager runs on the screen, and word when one comes or goes. The running
/// one owns a selection (EWMH, _NET_WM_CM_Sn).
class X11CompositingWatch {
public:
    explicit X11CompositingWatch(std::shared_ptr<X11Connection> connection);

    [[nodiscard]] bool isComposited() const;

    /// Replaces an earlier handler.
    void onChanged(std::function<void()> handler) { m_changed = std::move(handler); }

private:
    void followManagers();
    void handleEvent(const xcb_generic_event_t& event);

    std::shared_ptr<X11Connection> m_connection;
    xcb_atom_t m_selection;
    int m_ownerNotice = -1; ///< event code; never comes where the server does not tell
    std::function<void()> m_changed;
    X11Connection::Subscription m_subscription;
};

} // namespace quorvane
