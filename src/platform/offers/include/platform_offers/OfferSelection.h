// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>
#include <platform/Pasteboard.h>
#include <platform_offers/DataExchange.h>
#include <platform_offers/OfferSource.h>
#include <platform_offers/PipeWriting.h>

#include <QClipboard>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

namespace quorvane {

/// One of the clipboards that the pasteboard consists of: whose contents stand there, and whether
/// they are a text of ours that is only passing.
class OfferSelection {
public:
    /// Queue, exchange and writing must outlive it.
    OfferSelection(
        MainQueue& queue,
        DataExchange& exchange,
        PipeWriting& writing,
        ClipboardKind clipboard,
        QClipboard::Mode mode);

    OfferSelection(const OfferSelection&) = delete;
    OfferSelection& operator=(const OfferSelection&) = delete;

    /// To be called when somebody tells what stands there.
    void noteOffer(std::shared_ptr<DataOffer> offer);

    /// To be called when the device has gone by which we offer and read.
    void noteLoss();

    [[nodiscard]] OfferSource source() const;

    /// Changes whenever something is copied, by anybody.
    [[nodiscard]] std::uint64_t copies() const { return m_copies; }

    /// What we offer; null where other contents stand there.
    [[nodiscard]] const PasteboardItem* own() const;

    /// Whether the item, which was just read here, is the passing text.
    [[nodiscard]] bool isPassing(const PasteboardItem& item) const;

    /// False where nobody lets us.
    [[nodiscard]] bool copy(const QString& text);

    /// The same with a text that is restored later.
    [[nodiscard]] bool pass(const QString& text);

    void empty();

    /// Puts the item in the place of the passing text, if that still stands there; see
    /// `Pasteboard::restore`. Null where that is decided already: `done` is not called then.
    [[nodiscard]] std::unique_ptr<PasteboardRequest>
    restore(PasteboardItem item, std::function<void()> done);

private:
    struct Own {
        std::unique_ptr<DataSource> source;
        std::shared_ptr<const PasteboardItem> item;
    };

    [[nodiscard]] bool offer(PasteboardItem item);
    void giveBack(PasteboardItem item);
    void send(
        const PasteboardItem& item,
        const QString& type,
        int descriptor,
        const PipeWriting::Ended& ended);
    [[nodiscard]] std::unique_ptr<PasteboardRequest>
    askOwner(PasteboardItem item, std::function<void()> done);

    MainQueue& m_queue;
    DataExchange& m_exchange;
    PipeWriting& m_writing;
    ClipboardKind m_clipboard;
    QClipboard::Mode m_mode;
    std::optional<Own> m_own;
    std::shared_ptr<DataOffer> m_offer; ///< another program's; null where none is told
    std::optional<QString> m_passing;   ///< until it is restored, or seen to be replaced
    std::uint64_t m_copies = 0;
};

} // namespace quorvane
