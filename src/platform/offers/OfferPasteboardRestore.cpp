// SPDX-License-Identifier: MIT
#include <platform_offers/OfferPasteboardRestore.h>

#include <utility>

namespace quorvane {

// The exchange knows of an owner after us before we do.
OfferPasteboardRestore::OfferPasteboardRestore(
    DataExchange& exchange,
    MainQueue& queue,
    OfferSelection& clipboard,
    PasteboardItem clipboardItem,
    OfferSelection& primary,
    std::optional<PasteboardItem> primaryItem,
    std::function<void()> done)
    : m_clipboard(clipboard),
      m_clipboardItem(std::move(clipboardItem)),
      m_primary(primary),
      m_primaryItem(std::move(primaryItem)),
      m_done(std::move(done)),
      m_settling(exchange.whenSettled([this] { begin(); })),
      m_settled(queue.after(longestSettling, [this] { begin(); })) {
}

void OfferPasteboardRestore::begin() {
    if (std::exchange(m_hasBegun, true))
        return;
    m_settled.cancel();
    m_clipboardQuestion = m_clipboard.restore(std::move(m_clipboardItem), [this] { finishOne(); });
    if (m_primaryItem)
        m_primaryQuestion = m_primary.restore(*std::move(m_primaryItem), [this] { finishOne(); });
    m_open += (m_clipboardQuestion ? 1 : 0) + (m_primaryQuestion ? 1 : 0);
    finishOne();
}

void OfferPasteboardRestore::finishOne() {
    if (--m_open > 0)
        return;
    const auto done = std::move(m_done);
    done();
}

} // namespace quorvane
