// SPDX-License-Identifier: MIT
#pragma once

#include <x11_server/X11Connection.h>

#include <functional>
#include <memory>
#include <optional>

namespace quorvane {

/// Tells when a key that was pressed goes up, whichever window gets its release. It listens from
/// watch() to that moment only: at other times no key of the session passes through this process.
class X11KeyReleaseWatch {
public:
    X11KeyReleaseWatch(std::shared_ptr<X11Connection> connection, std::function<void()> onReleased);
    ~X11KeyReleaseWatch();

    X11KeyReleaseWatch(const X11KeyReleaseWatch&) = delete;
    X11KeyReleaseWatch& operator=(const X11KeyReleaseWatch&) = delete;

    /// Whether the server tells; watch() does nothing otherwise.
    [[nodiscard]] bool isAvailable() const { return m_isAvailable; }

    /// Waits for this key, instead of another.
    void watch(xcb_keycode_t key);

    /// Waits for none.
    void stop();

private:
    void handleEvent(const xcb_generic_event_t& event);

    std::shared_ptr<X11Connection> m_connection;
    std::function<void()> m_onReleased;
    bool m_isAvailable;
    std::optional<xcb_keycode_t> m_key;
    X11Connection::Subscription m_subscription;
};

} // namespace quorvane
