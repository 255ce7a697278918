// SPDX-License-Identifier: MIT
#pragma once

#include <platform/Workspace.h>
#include <x11_server/X11Connection.h>
#include <x11_server/X11ServerClock.h>
#include <x11_windows/X11KeyboardProbe.h>
#include <x11_windows/X11UserTime.h>
#include <x11_windows/X11Windows.h>

#include <cstdint>
#include <memory>
#include <vector>

namespace quorvane {

/// Follows which window is active, as the window manager tells. While that is one of ours, a dock
/// or desktop window, or none, the last window of another program counts as in front, as long as it
/// is shown. Without a window manager nothing is certain.
class X11Workspace final : public Workspace {
public:
    explicit X11Workspace(std::shared_ptr<X11Connection> connection);

    [[nodiscard]] FrontmostApplication frontmostApplication() const override;
    [[nodiscard]] bool isShown(const RunningApplication& application) const override;
    [[nodiscard]] bool receivesKeys(const RunningApplication& application) const override;
    [[nodiscard]] QScreen* focusedScreen() const override;
    [[nodiscard]] bool activate(const RunningApplication& application) override;
    void onFrontmostChanged(std::function<void()> handler) override;
    void onActiveSpaceChanged(std::function<void()> handler) override;

private:
    void handleEvent(const xcb_generic_event_t& event);
    /// Whether the active window is another program's.
    bool track(xcb_window_t active) const;
    void trackSpace();
    void tellFrontmostChanged() const;
    [[nodiscard]] RunningApplication applicationOf(xcb_window_t window) const;
    [[nodiscard]] bool isAnotherProgram(xcb_window_t window) const;
    [[nodiscard]] std::vector<std::uint32_t> currentDesktop() const;

    std::shared_ptr<X11Connection> m_connection;
    X11ServerClock m_clock;
    X11Windows m_windows;
    X11KeyboardProbe m_keyboard;
    X11UserTime m_userTime;
    /// Updated by each question too: a caller may ask before the event that reports a change.
    mutable xcb_window_t m_lastForeign = XCB_WINDOW_NONE;
    std::vector<std::uint32_t> m_desktop;
    std::function<void()> m_frontmostChanged;
    std::function<void()> m_spaceChanged;
    X11Connection::Subscription m_subscription;
};

} // namespace quorvane
