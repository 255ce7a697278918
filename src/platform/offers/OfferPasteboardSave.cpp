// SPDX-License-Identifier: MIT
#include <platform_offers/OfferPasteboardSave.h>

#include <utility>

namespace quorvane {

OfferPasteboardSave::OfferPasteboardSave(
    DataExchange& exchange,
    MainQueue& queue,
    const OfferSelection& clipboard,
    const OfferSelection* primary,
    Done done)
    : m_queue(queue),
      m_done(std::move(done)),
      m_clipboard{&clipboard, 0, {}, nullptr},
      m_primary{primary, 0, {}, nullptr},
      m_settling(exchange.whenSettled([this] { begin(); })),
      m_settled(queue.after(longestSettling, [this] { begin(); })),
      m_end(queue.after(longestSave, [this] { cutOff(); })) {
}

// What was copied shortly before we were asked is what is read.
void OfferPasteboardSave::begin() {
    if (std::exchange(m_isReading, true))
        return;
    m_settled.cancel();
    begin(m_clipboard);
    begin(m_primary);
    finishWhenRead();
}

void OfferPasteboardSave::begin(Part& part) {
    if (part.selection == nullptr)
        return;
    part.copiesBefore = part.selection->copies();
    auto source = part.selection->source();
    part.item = std::move(source.atHand);
    if (part.item)
        return;
    part.reading = std::make_unique<OfferSave>(
        m_queue, std::move(source.offer), [this, &part](PasteboardItem item) {
            part.item = std::move(item);
            finishWhenRead();
        });
}

// The last part to end may destroy the save: which ones are to end is known before.
void OfferPasteboardSave::cutOff() {
    auto* const clipboard = isRead(m_clipboard) ? nullptr : m_clipboard.reading.get();
    auto* const primary = isRead(m_primary) ? nullptr : m_primary.reading.get();
    for (auto* reading : {clipboard, primary}) {
        if (reading != nullptr)
            reading->finish();
    }
}

bool OfferPasteboardSave::isRead(const Part& part) {
    return part.selection == nullptr || part.item;
}

bool OfferPasteboardSave::hasChanged(const Part& part) {
    return part.selection != nullptr && part.selection->copies() != part.copiesBefore;
}

void OfferPasteboardSave::finishWhenRead() {
    if (!isRead(m_clipboard) || !isRead(m_primary))
        return;
    PasteboardContents contents;
    if (!m_clipboard.item->empty())
        contents.items.push_back(*std::move(m_clipboard.item));
    contents.selection = std::move(m_primary.item);
    const bool hasBeenCopiedMeanwhile = hasChanged(m_clipboard) || hasChanged(m_primary);
    const auto done = std::move(m_done);
    done(std::move(contents), hasBeenCopiedMeanwhile);
}

} // namespace quorvane
