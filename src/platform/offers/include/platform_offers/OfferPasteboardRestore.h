// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>
#include <platform/PasteboardRequest.h>
#include <platform_offers/DataExchange.h>
#include <platform_offers/OfferSelection.h>

#include <functional>
#include <memory>
#include <optional>

namespace quorvane {

/// One restore of the pasteboard: of the clipboard, and of the primary selection where the text has
/// passed through it, side by side.
class OfferPasteboardRestore final : public PasteboardRequest {
public:
    /// An exchange that does not catch up for this long is taken at what it told before.
    static constexpr Seconds longestSettling{0.3};

    /// Calls `done` once, in a later event-loop iteration; it may destroy the restore. All but the
    /// handler must outlive it.
    OfferPasteboardRestore(
        DataExchange& exchange,
        MainQueue& queue,
        OfferSelection& clipboard,
        PasteboardItem clipboardItem,
        OfferSelection& primary,
        std::optional<PasteboardItem> primaryItem,
        std::function<void()> done);

private:
    void begin();
    void finishOne();

    OfferSelection& m_clipboard;
    PasteboardItem m_clipboardItem;
    OfferSelection& m_primary;
    std::optional<PasteboardItem> m_primaryItem;
    std::function<void()> m_done;
    bool m_hasBegun = false;
    int m_open = 1; ///< what is still being decided, begin() itself at first
    std::unique_ptr<PasteboardRequest> m_clipboardQuestion;
    std::unique_ptr<PasteboardRequest> m_primaryQuestion;
    std::shared_ptr<void> m_settling;
    Deadline m_settled;
};

} // namespace quorvane
