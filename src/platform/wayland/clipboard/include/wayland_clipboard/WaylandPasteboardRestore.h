// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>
#include <platform/PasteboardRequest.h>

#include <functional>
#include <memory>
#include <optional>
#include <wayland_clipboard/WaylandPasteboardSelection.h>
#include <wayland_server/WaylandConnection.h>

namespace quorvane {

/// One restore of the pasteboard: of the clipboard, and of the primary selection where the text has
/// passed through it, side by side.
class WaylandPasteboardRestore final : public PasteboardRequest {
public:
    /// A compositor that does not catch up for this long is taken at what it told before.
    static constexpr Seconds longestSettling{0.3};

    /// Calls `done` once, in a later event-loop iteration; it may destroy the restore. All but the
    /// handler must outlive it.
    WaylandPasteboardRestore(
        WaylandConnection& connection,
        MainQueue& queue,
        WaylandPasteboardSelection& clipboard,
        PasteboardItem clipboardItem,
        WaylandPasteboardSelection& primary,
        std::optional<PasteboardItem> primaryItem,
        std::function<void()> done);

private:
    void begin();
    void finishOne();

    WaylandPasteboardSelection& m_clipboard;
    PasteboardItem m_clipboardItem;
    WaylandPasteboardSelection& m_primary;
    std::optional<PasteboardItem> m_primaryItem;
    std::function<void()> m_done;
    bool m_hasBegun = false;
    int m_open = 1; ///< what is still being decided, begin() itself at first
    std::unique_ptr<PasteboardRequest> m_clipboardQuestion;
    std::unique_ptr<PasteboardRequest> m_primaryQuestion;
    WaylandSubscription m_settling;
    Deadline m_settled;
};

} // namespace quorvane
