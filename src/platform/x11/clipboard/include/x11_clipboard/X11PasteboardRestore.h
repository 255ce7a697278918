// SPDX-License-Identifier: MIT
#pragma once

#include <platform/PasteboardRequest.h>
#include <x11_clipboard/X11PasteboardSelection.h>

#include <functional>
#include <memory>
#include <optional>

namespace quorvane {

/// One restore of the pasteboard: of CLIPBOARD, and of PRIMARY where the text has passed through
/// it, side by side.
class X11PasteboardRestore final : public PasteboardRequest {
public:
    /// Calls `done` once, in a later event-loop iteration; it may destroy the restore. The
    /// selections must outlive it.
    X11PasteboardRestore(
        X11PasteboardSelection& clipboard,
        PasteboardItem clipboardItem,
        X11PasteboardSelection& primary,
        std::optional<PasteboardItem> primaryItem,
        std::function<void()> done);

private:
    void finishOne();

    std::function<void()> m_done;
    int m_open;
    std::unique_ptr<PasteboardRequest> m_clipboard;
    std::unique_ptr<PasteboardRequest> m_primary;
};

} // namespace quorvane
