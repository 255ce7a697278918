// SPDX-License-Identifier: MIT
#include "OfferText.h"
#include "OwnQtClipboard.h"

#include <platform_offers/OfferSelection.h>
#include <platform_offers/OfferTextReading.h>

#include <algorithm>
#include <unistd.h>
#include <utility>

namespace quorvane {

namespace {

// An owner that is asked whether it holds the passing text.
constexpr Seconds longestQuestion{0.3};

QStringList typesOf(const PasteboardItem& item) {
    QStringList types;
    for (const auto& entry : item)
        types.append(entry.type);
    return types;
}

} // namespace

OfferSelection::OfferSelection(
    MainQueue& queue,
    DataExchange& exchange,
    PipeWriting& writing,
    ClipboardKind clipboard,
    QClipboard::Mode mode)
    : m_queue(queue),
      m_exchange(exchange),
      m_writing(writing),
      m_clipboard(clipboard),
      m_mode(mode) {
}

// While our source lives we are told of its own contents, and sometimes, between our request and
// its arrival, of what stood there before. A program that follows us cancels it first.
void OfferSelection::noteOffer(std::shared_ptr<DataOffer> offer) {
    if (m_own)
        return;
    m_offer = std::move(offer);
    if (m_offer)
        ++m_copies;
}

void OfferSelection::noteLoss() {
    m_own.reset();
    m_offer.reset();
}

OfferSource OfferSelection::source() const {
    if (m_own)
        return {*m_own->item, nullptr};
    if (!m_offer)
        return {PasteboardItem{}, nullptr};
    if (auto item = ownQtItem(m_mode))
        return {*std::move(item), nullptr};
    return {std::nullopt, m_offer};
}

const PasteboardItem* OfferSelection::own() const {
    return m_own ? m_own->item.get() : nullptr;
}

bool OfferSelection::isPassing(const PasteboardItem& item) const {
    return m_passing && (m_own || textOf(item) == m_passing);
}

bool OfferSelection::copy(const QString& text) {
    m_passing.reset();
    return offer(offeredText(text, TextStay::Lasting));
}

bool OfferSelection::pass(const QString& text) {
    const bool isTaken = offer(offeredText(text, TextStay::Passing));
    m_passing = isTaken ? std::optional(text) : std::nullopt;
    return isTaken;
}

void OfferSelection::empty() {
    m_passing.reset();
    giveBack({});
}

std::unique_ptr<PasteboardRequest>
OfferSelection::restore(PasteboardItem item, std::function<void()> done) {
    if (m_passing && !m_own && m_offer)
        return askOwner(std::move(item), std::move(done));
    if (m_passing && m_own)
        giveBack(std::move(item));
    m_passing.reset();
    return nullptr;
}

bool OfferSelection::offer(PasteboardItem item) {
    auto* device = m_exchange.device();
    if (device == nullptr || !device->has(m_clipboard))
        return false;
    const auto types = typesOf(item);
    const auto shared = std::make_shared<const PasteboardItem>(std::move(item));
    auto source = device->makeSource(
        types,
        {[this, shared](const QString& type, int descriptor, const PipeWriting::Ended& ended) {
             send(*shared, type, descriptor, ended);
         },
         [this] {
             m_own.reset();
         }});
    device->select(m_clipboard, source.get());
    // The source before goes last: the clipboard is never empty in between.
    m_own = Own{std::move(source), shared};
    m_offer.reset();
    ++m_copies;
    return true;
}

void OfferSelection::giveBack(PasteboardItem item) {
    if (!item.empty()) {
        static_cast<void>(offer(std::move(item)));
        return;
    }
    if (auto* device = m_exchange.device(); device != nullptr && device->has(m_clipboard))
        device->select(m_clipboard, nullptr);
    noteLoss();
}

void OfferSelection::send(
    const PasteboardItem& item,
    const QString& type,
    int descriptor,
    const PipeWriting::Ended& ended) {
    const auto entry = std::ranges::find(item, type, &PasteboardEntry::type);
    if (entry != item.end())
        return m_writing.write(descriptor, entry->bytes, ended);
    ::close(descriptor);
    ended(false);
}

std::unique_ptr<PasteboardRequest>
OfferSelection::askOwner(PasteboardItem item, std::function<void()> done) {
    const OfferTextReading::Limits limits{
        longestQuestion, longestQuestion, m_passing->toUtf8().size()};
    return std::make_unique<OfferTextReading>(
        m_queue,
        source(),
        limits,
        [this, item = std::move(item), asked = m_copies, done = std::move(done)](
            const std::optional<QString>& text) {
            if (text && text == m_passing && asked == m_copies)
                giveBack(item);
            m_passing.reset();
            done();
        });
}

} // namespace quorvane
