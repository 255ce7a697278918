// SPDX-License-Identifier: MIT
#pragma once

#include <platform/Pasteboard.h>
#include <x11_clipboard/X11SelectionSave.h>
#include <x11_clipboard/X11SelectionSource.h>

#include <memory>
#include <optional>

namespace quorvane {

/// One save of the pasteboard: of CLIPBOARD, and of PRIMARY where the text passes through it, side
/// by side.
class X11PasteboardSave {
public:
    /// Calls `done` once, in a later event-loop iteration; it may destroy the save. Destroying it
    /// earlier gives up. Inbox and queue must outlive it.
    X11PasteboardSave(
        X11SelectionInbox& inbox,
        MainQueue& queue,
        xcb_timestamp_t time,
        X11SelectionSource clipboard,
        std::optional<X11SelectionSource> primary,
        Pasteboard::SaveHandler done);

    X11PasteboardSave(const X11PasteboardSave&) = delete;
    X11PasteboardSave& operator=(const X11PasteboardSave&) = delete;

private:
    struct Part {
        std::optional<PasteboardItem> item;
        std::unique_ptr<X11SelectionSave> reading;
    };

    void begin(Part& part, X11SelectionSource source, xcb_timestamp_t time);
    void finishWhenComplete();

    X11SelectionInbox& m_inbox;
    MainQueue& m_queue;
    Pasteboard::SaveHandler m_done;
    Part m_clipboard;
    std::optional<Part> m_primary;
    Deadline m_soon;
};

} // namespace quorvane
