// SPDX-License-Identifier: MIT
#include <platform_portal/PortalPasteboard.h>

#include <utility>

namespace quorvane {

PortalPasteboard::PortalPasteboard(
    std::shared_ptr<PortalClipboard> clipboard,
    std::unique_ptr<Pasteboard> otherwise,
    MainQueue& queue)
    : m_clipboard(std::move(clipboard)),
      m_otherwise(std::move(otherwise)),
      m_shared(m_clipboard, queue),
      m_lender(m_otherwise.get()) {
}

Pasteboard& PortalPasteboard::current() {
    return m_clipboard->isShared() ? m_shared : *m_otherwise;
}

void PortalPasteboard::save(PasteSource source, SaveHandler done) {
    current().save(source, std::move(done));
}

void PortalPasteboard::clear() {
    current().clear();
}

PutOutcome PortalPasteboard::setString(const QString& text, TextStay stay, PasteSource source) {
    if (stay == TextStay::Passing)
        m_lender = &current();
    return current().setString(text, stay, source);
}

/// By the one that took the text, though the session may have ended meanwhile.
std::unique_ptr<PasteboardRequest> PortalPasteboard::restore(
    PasteboardItem item, std::optional<PasteboardItem> selection, std::function<void()> done) {
    return m_lender->restore(std::move(item), std::move(selection), std::move(done));
}

/// The portal has no marked text; a field that is read into has the focus, which the other one
/// needs.
std::unique_ptr<PasteboardRequest>
PortalPasteboard::readText(PasteSource source, TextHandler done) {
    auto& read = source == PasteSource::Selection ? *m_otherwise : current();
    return read.readText(source, std::move(done));
}

std::unique_ptr<PasteboardRequest> PortalPasteboard::readDraggedText(TextHandler done) {
    return m_otherwise->readDraggedText(std::move(done));
}

void PortalPasteboard::handOver(std::function<void()> done) {
    current().handOver(std::move(done));
}

} // namespace quorvane
