// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>
#include <platform/Pasteboard.h>
#include <platform_offers/OfferPasteboard.h>
#include <platform_portal/PortalClipboard.h>

#include <memory>

namespace quorvane {

/// The pasteboard by the portal while that shares the clipboard with us, and by another one before
/// and after. What we have put there through the portal goes with the session.
class PortalPasteboard final : public Pasteboard {
public:
    /// The queue must outlive it.
    PortalPasteboard(
        std::shared_ptr<PortalClipboard> clipboard,
        std::unique_ptr<Pasteboard> otherwise,
        MainQueue& queue);

    void save(PasteSource source, SaveHandler done) override;
    void clear() override;
    [[nodiscard]] PutOutcome
    setString(const QString& text, TextStay stay, PasteSource source) override;
    [[nodiscard]] std::unique_ptr<PasteboardRequest> restore(
        PasteboardItem item,
        std::optional<PasteboardItem> selection,
        std::function<void()> done) override;
    [[nodiscard]] std::unique_ptr<PasteboardRequest>
    readText(PasteSource source, TextHandler done) override;
    [[nodiscard]] std::unique_ptr<PasteboardRequest> readDraggedText(TextHandler done) override;
    void handOver(std::function<void()> done) override;

private:
    [[nodiscard]] Pasteboard& current();

    std::shared_ptr<PortalClipboard> m_clipboard;
    std::unique_ptr<Pasteboard> m_otherwise;
    OfferPasteboard m_shared;
    Pasteboard* m_lender; ///< which has the passing text
};

} // namespace quorvane
