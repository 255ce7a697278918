// SPDX-License-Identifier: MIT
#pragma once

#include <x11_server/X11Connection.h>

#include <QPoint>
#include <QStringList>

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace quorvane {

/// EWMH's source indication for direct user actions: window managers do not question these.
inline constexpr std::uint32_t sourcePager = 2;

/// Questions about windows, and requests to the window manager. The server is asked at every call;
/// a window that no longer exists has no properties.
class X11Windows {
public:
    explicit X11Windows(std::shared_ptr<X11Connection> connection)
        : m_connection(std::move(connection)) {}

    /// Whether a window manager runs that follows the EWMH: only then do its properties on the root
    /// mean anything, a crashed one leaves them behind.
    [[nodiscard]] bool hasWindowManager() const;

    /// A window of such a window manager's own; XCB_WINDOW_NONE where none runs.
    [[nodiscard]] xcb_window_t manager() const;

    struct Active {
        xcb_window_t window; ///< the client window that keys go to; XCB_WINDOW_NONE for none
        bool isTold;         ///< by a window manager, which alone knows for certain
    };

    /// By _NET_ACTIVE_WINDOW, or without a window manager by the input focus.
    [[nodiscard]] Active activeWindow() const;

    /// The window of activeWindow().
    [[nodiscard]] xcb_window_t active() const { return activeWindow().window; }

    /// The server's own view: a window, or XCB_WINDOW_NONE where no window has the focus.
    [[nodiscard]] xcb_window_t inputFocus() const;

    /// Both strings of WM_CLASS, instance first; empty where there are none.
    [[nodiscard]] QStringList classOf(xcb_window_t window) const;

    [[nodiscard]] bool exists(xcb_window_t window) const;
    /// Mapped, and all its ancestors too.
    [[nodiscard]] bool isViewable(xcb_window_t window) const;

    /// Viewable, not minimised, and on the virtual desktop in front.
    [[nodiscard]] bool isShown(xcb_window_t window) const;

    /// Whether it is a dialog of the owner, or of such a dialog (ICCCM 4.1.2.6).
    [[nodiscard]] bool isTransientFor(xcb_window_t window, xcb_window_t owner) const;

    /// Part of the desktop itself: a dock (panel, taskbar) or the window behind all others.
    [[nodiscard]] bool isDockOrDesktop(xcb_window_t window) const;

    /// On the root, in the server's pixels; none for a window that is gone.
    [[nodiscard]] std::optional<QPoint> centreOf(xcb_window_t window) const;

    /// The values of a property of format 32, at most 64 of them.
    [[nodiscard]] std::vector<std::uint32_t>
    values(xcb_window_t window, const char* property, xcb_atom_t type) const;

    /// Sends a message about the window to the window manager, as EWMH has it.
    void requestOfManager(
        xcb_window_t window, const char* message, const std::array<std::uint32_t, 5>& data) const;

    /// In front of the others and with the keyboard focus; the window must be mapped. `time` is the
    /// server's, of the user's wish: a window manager refuses one from before the last event that
    /// it has seen, which may have gone to a window of Wayland, of which the server tells nothing.
    void requestFocus(xcb_window_t window, xcb_timestamp_t time) const;

private:
    [[nodiscard]] bool isManager(xcb_window_t window) const;
    [[nodiscard]] bool isOnDesktopInFront(xcb_window_t window) const;
    [[nodiscard]] xcb_window_t topLevelOf(xcb_window_t window) const;

    std::shared_ptr<X11Connection> m_connection;
};

} // namespace quorvane
