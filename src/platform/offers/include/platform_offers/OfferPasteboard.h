// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>
#include <platform/Pasteboard.h>
#include <platform_offers/DataExchange.h>
#include <platform_offers/OfferHandOver.h>
#include <platform_offers/OfferPasteboardSave.h>
#include <platform_offers/OfferSelection.h>
#include <platform_offers/PipeWriting.h>

#include <functional>
#include <list>
#include <memory>
#include <optional>

namespace quorvane {

/// The pasteboard by who passes contents between programs without the focus; and the primary
/// selection while a text passes into a window that pastes from it.
class OfferPasteboard : public Pasteboard {
public:
    /// The queue must outlive it.
    OfferPasteboard(std::shared_ptr<DataExchange> exchange, MainQueue& queue);
    ~OfferPasteboard() override;

    OfferPasteboard(const OfferPasteboard&) = delete;
    OfferPasteboard& operator=(const OfferPasteboard&) = delete;

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
    /// None: what is dragged is told to the window below alone.
    [[nodiscard]] std::unique_ptr<PasteboardRequest> readDraggedText(TextHandler done) override;
    void handOver(std::function<void()> done) override;

private:
    using Saves = std::list<std::unique_ptr<OfferPasteboardSave>>;

    enum class Attempt { First, Last };

    void save(PasteSource source, Attempt attempt, SaveHandler done);
    void finishSave(PasteboardContents found, const SaveHandler& done) const;
    [[nodiscard]] PutOutcome pass(const QString& text, PasteSource source);
    [[nodiscard]] std::unique_ptr<PasteboardRequest> read(OfferSource source, TextHandler done);
    void finishClearing();

    std::shared_ptr<DataExchange> m_exchange;
    MainQueue& m_queue;
    PipeWriting m_writing;
    OfferSelection m_clipboard;
    OfferSelection m_primary;
    bool m_isClearing = false;
    Deadline m_clearing;
    Saves m_saves;
    std::unique_ptr<OfferHandOver> m_handOver;
};

} // namespace quorvane
