// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>
#include <x11_clipboard/X11SelectionOwner.h>

#include <functional>

namespace quorvane {

/// Waits, before the process ends, until the compositor has read what CLIPBOARD holds. One that
/// keeps it does so by itself, some time after it was copied, and cannot be asked to.
class X11CompositorHandOver {
public:
    static constexpr Seconds longestWait{1.0};

    /// Calls `done` once, in a later event-loop iteration: it may destroy the hand-over. The
    /// compositor is known by a window of its own. Queue and clipboard must outlive this.
    X11CompositorHandOver(
        MainQueue& queue,
        X11SelectionOwner& clipboard,
        xcb_window_t compositor,
        std::function<void()> done);
    ~X11CompositorHandOver();

    X11CompositorHandOver(const X11CompositorHandOver&) = delete;
    X11CompositorHandOver& operator=(const X11CompositorHandOver&) = delete;

private:
    void finishOnceRead();
    void finish();

    MainQueue& m_queue;
    X11SelectionOwner& m_clipboard;
    xcb_window_t m_compositor;
    std::function<void()> m_done;
    Deadline m_read;
    Deadline m_end;
};

} // namespace quorvane
