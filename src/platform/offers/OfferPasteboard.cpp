// SPDX-License-Identifier: MIT
#include <platform/PasteboardText.h>
#include <platform_offers/OfferPasteboard.h>
#include <platform_offers/OfferPasteboardRestore.h>
#include <platform_offers/OfferTextReading.h>

#include <utility>

namespace quorvane {

OfferPasteboard::OfferPasteboard(std::shared_ptr<DataExchange> exchange, MainQueue& queue)
    : m_exchange(std::move(exchange)),
      m_queue(queue),
      m_writing(queue),
      m_clipboard(queue, *m_exchange, m_writing, ClipboardKind::General, QClipboard::Clipboard),
      m_primary(queue, *m_exchange, m_writing, ClipboardKind::Primary, QClipboard::Selection) {
    m_exchange->follow(
        {[this](ClipboardKind kind, std::shared_ptr<DataOffer> offer) {
             auto& selection = kind == ClipboardKind::Primary ? m_primary : m_clipboard;
             selection.noteOffer(std::move(offer));
         },
         [this] {
             m_clipboard.noteLoss();
             m_primary.noteLoss();
         }});
}

OfferPasteboard::~OfferPasteboard() {
    m_exchange->follow({});
}

void OfferPasteboard::save(PasteSource source, SaveHandler done) {
    finishClearing();
    save(source, Attempt::First, std::move(done));
}

// What is copied while an earlier owner is being read is the user's: it is read instead.
void OfferPasteboard::save(PasteSource source, Attempt attempt, SaveHandler done) {
    const auto place = m_saves.emplace(m_saves.end());
    *place = std::make_unique<OfferPasteboardSave>(
        *m_exchange,
        m_queue,
        m_clipboard,
        source == PasteSource::Selection ? &m_primary : nullptr,
        [this, place, source, attempt, done = std::move(done)](
            PasteboardContents found, bool hasBeenCopiedMeanwhile) {
            m_saves.erase(place);
            if (attempt == Attempt::First && hasBeenCopiedMeanwhile)
                save(source, Attempt::Last, done);
            else
                finishSave(std::move(found), done);
        });
}

void OfferPasteboard::finishSave(PasteboardContents found, const SaveHandler& done) const {
    found.isPassing =
        m_clipboard.isPassing(found.items.empty() ? PasteboardItem{} : found.items.front());
    found.selectionIsPassing = found.selection && m_primary.isPassing(*found.selection);
    done(std::move(found));
}

// Carried out later in this event-loop iteration, and not at all if a text is set before, as nearly
// always: a clipboard manager that sees an empty clipboard would fill it with the old contents.
void OfferPasteboard::clear() {
    m_isClearing = true;
    m_clearing = m_queue.after(Seconds(0), [this] { finishClearing(); });
}

PutOutcome OfferPasteboard::setString(const QString& text, TextStay stay, PasteSource source) {
    m_clearing.cancel();
    m_isClearing = false;
    if (stay == TextStay::Passing)
        return pass(text, source);
    return m_clipboard.copy(text) ? PutOutcome::Taken : PutOutcome::Refused;
}

/// On both where the keys paste from the primary selection: some terminals let the user choose.
PutOutcome OfferPasteboard::pass(const QString& text, PasteSource source) {
    const bool isOnClipboard = m_clipboard.pass(text);
    const bool isTaken = source == PasteSource::Selection ? m_primary.pass(text) : isOnClipboard;
    return isTaken ? PutOutcome::Taken : PutOutcome::Refused;
}

std::unique_ptr<PasteboardRequest> OfferPasteboard::restore(
    PasteboardItem item, std::optional<PasteboardItem> selection, std::function<void()> done) {
    return std::make_unique<OfferPasteboardRestore>(
        *m_exchange,
        m_queue,
        m_clipboard,
        std::move(item),
        m_primary,
        std::move(selection),
        std::move(done));
}

std::unique_ptr<PasteboardRequest> OfferPasteboard::readText(PasteSource source, TextHandler done) {
    const auto& selection = source == PasteSource::Selection ? m_primary : m_clipboard;
    return read(selection.source(), std::move(done));
}

std::unique_ptr<PasteboardRequest> OfferPasteboard::readDraggedText(TextHandler done) {
    return read({PasteboardItem{}, nullptr}, std::move(done));
}

std::unique_ptr<PasteboardRequest> OfferPasteboard::read(OfferSource source, TextHandler done) {
    const OfferTextReading::Limits limits{
        OfferSave::longestSilence, OfferPasteboardSave::longestSave, longestText};
    return std::make_unique<OfferTextReading>(m_queue, std::move(source), limits, std::move(done));
}

// A manager that keeps a password would show it in its history.
void OfferPasteboard::handOver(std::function<void()> done) {
    finishClearing();
    const auto* own = m_clipboard.own();
    if (own == nullptr || own->empty() || isSecret(*own))
        return m_queue.async(std::move(done));
    m_handOver = std::make_unique<OfferHandOver>(m_queue, m_writing, std::move(done));
}

void OfferPasteboard::finishClearing() {
    m_clearing.cancel();
    if (std::exchange(m_isClearing, false))
        m_clipboard.empty();
}

} // namespace quorvane
