// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>
#include <x11_clipboard/X11SelectionConversion.h>

#include <functional>
#include <vector>

namespace quorvane {

/// Asks the desktop's clipboard manager to keep what CLIPBOARD holds when its owner ends
/// (freedesktop.org, "ClipboardManager").
class X11ClipboardHandOver {
public:
    static constexpr Seconds longestWait{1.0};

    /// Calls `done` once, in a later event-loop iteration, when the manager has taken what it wants
    /// or refused, or after `longestWait`; it may destroy the hand-over. `targets` is what there is
    /// to keep. Inbox and queue must outlive it.
    X11ClipboardHandOver(
        X11SelectionInbox& inbox,
        MainQueue& queue,
        xcb_timestamp_t time,
        const std::vector<xcb_atom_t>& targets,
        std::function<void()> done);

    X11ClipboardHandOver(const X11ClipboardHandOver&) = delete;
    X11ClipboardHandOver& operator=(const X11ClipboardHandOver&) = delete;

private:
    void finish();

    std::function<void()> m_done;
    X11SelectionConversion m_conversion;
    Deadline m_end;
};

} // namespace quorvane
