// SPDX-License-Identifier: MIT
#include "X11PlainText.h"

#include <x11_clipboard/X11Pasteboard.h>
#include <x11_clipboard/X11PasteboardRestore.h>
#include <x11_clipboard/X11TextReading.h>

#include <utility>

namespace quorvane {

X11Pasteboard::X11Pasteboard(
    std::shared_ptr<X11Connection> connection, MainQueue& queue, ClipboardKeeper keeper)
    : m_connection(std::move(connection)),
      m_queue(queue),
      m_windows(m_connection),
      m_keeper(keeper),
      m_clock(m_connection),
      m_inbox(m_connection, m_queue),
      m_delivery(m_connection, m_queue),
      m_clipboard(
          m_inbox, m_clock, m_delivery, m_connection->atom("CLIPBOARD"), QClipboard::Clipboard),
      m_primary(m_inbox, m_clock, m_delivery, XCB_ATOM_PRIMARY, QClipboard::Selection),
      m_loan(m_connection, m_queue, m_clipboard.owner()) {
}

void X11Pasteboard::save(PasteSource source, SaveHandler done) {
    finishClearing();
    save(source, Attempt::First, std::move(done));
}

// What is copied while an earlier owner is being read is the user's: it is read instead.
void X11Pasteboard::save(PasteSource source, Attempt attempt, SaveHandler done) {
    std::optional<X11SelectionSource> primary;
    if (source == PasteSource::Selection)
        primary = m_primary.source();
    const auto place = m_saves.emplace(m_saves.end());
    *place = std::make_unique<X11PasteboardSave>(
        m_inbox,
        m_queue,
        m_clock.now(),
        m_clipboard.source(),
        std::move(primary),
        [this, place, source, attempt, before = owners(), done = std::move(done)](
            PasteboardContents found) {
            m_saves.erase(place);
            if (attempt == Attempt::First && hasBeenCopiedSince(before))
                save(source, Attempt::Last, done);
            else
                finishSave(std::move(found), done);
        });
}

void X11Pasteboard::finishSave(PasteboardContents found, const SaveHandler& done) const {
    found.isPassing =
        m_clipboard.isPassing(found.items.empty() ? PasteboardItem{} : found.items.front());
    found.selectionIsPassing = found.selection && m_primary.isPassing(*found.selection);
    done(std::move(found));
}

X11Pasteboard::Owners X11Pasteboard::owners() const {
    return {
        m_connection->selectionOwner(m_clipboard.owner().selection()),
        m_connection->selectionOwner(m_primary.owner().selection()),
        m_clipboard.owner().since()};
}

// Carried out later in this event-loop iteration, and not at all if a text is set before, as nearly
// always: a clipboard manager that sees an empty clipboard would fill it with the old contents.
void X11Pasteboard::clear() {
    m_isClearing = true;
    m_clearing = m_queue.after(Seconds(0), [this] { finishClearing(); });
}

/// An owner that has gone has not copied anything.
bool X11Pasteboard::hasBeenCopiedSince(const Owners& before) const {
    const auto now = owners();
    const auto isNew = [](xcb_window_t window, xcb_window_t windowBefore) {
        return window != XCB_WINDOW_NONE && window != windowBefore;
    };
    return isNew(now.clipboard, before.clipboard) || isNew(now.primary, before.primary) ||
           now.ourSince != before.ourSince;
}

PutOutcome X11Pasteboard::setString(const QString& text, TextStay stay, PasteSource source) {
    m_clearing.cancel();
    m_isClearing = false;
    const auto outcome = stay == TextStay::Passing ? pass(text, source)
                         : m_clipboard.copy(text)  ? PutOutcome::Taken
                                                   : PutOutcome::Refused;
    m_loan.offer();
    return outcome;
}

/// Into both selections where the keys paste from PRIMARY: some terminals let the user choose.
PutOutcome X11Pasteboard::pass(const QString& text, PasteSource source) {
    const auto window = m_windows.active();
    constexpr xcb_window_t nobody = XCB_WINDOW_NONE;
    const bool isFromPrimary = source == PasteSource::Selection;
    const bool isOnClipboard = m_clipboard.pass(text, isFromPrimary ? nobody : window);
    const bool isTaken = isFromPrimary ? m_primary.pass(text, window) : isOnClipboard;
    return isTaken ? PutOutcome::Taken : PutOutcome::Refused;
}

std::unique_ptr<PasteboardRequest> X11Pasteboard::restore(
    PasteboardItem item, std::optional<PasteboardItem> selection, std::function<void()> done) {
    auto request = std::make_unique<X11PasteboardRestore>(
        m_clipboard, std::move(item), m_primary, std::move(selection), std::move(done));
    m_loan.offer();
    return request;
}

std::unique_ptr<PasteboardRequest> X11Pasteboard::readText(PasteSource source, TextHandler done) {
    const auto& selection = source == PasteSource::Selection ? m_primary : m_clipboard;
    return read(selection.source(), std::move(done));
}

// The XDND protocol lets the target ask for the data before the drop.
std::unique_ptr<PasteboardRequest> X11Pasteboard::readDraggedText(TextHandler done) {
    return read({m_connection->atom("XdndSelection"), std::nullopt}, std::move(done));
}

std::unique_ptr<PasteboardRequest>
X11Pasteboard::read(const X11SelectionSource& source, TextHandler done) {
    const X11TextReading::Limits limits{
        X11SelectionSave::longestSilence, X11SelectionSave::longestSave, longestText};
    return std::make_unique<X11TextReading>(
        m_inbox, source, m_clock.now(), limits, std::move(done));
}

void X11Pasteboard::handOver(std::function<void()> done) {
    finishClearing();
    m_loan.suspend();
    const bool isKept = isToBeHandedOver();
    if (isKept && hasClipboardManager())
        return handOverToManager(std::move(done));
    const bool isReadUnasked = isKept && m_keeper == ClipboardKeeper::Compositor;
    const auto compositor = isReadUnasked ? m_windows.manager() : xcb_window_t{XCB_WINDOW_NONE};
    if (compositor != XCB_WINDOW_NONE)
        return handOverToCompositor(compositor, std::move(done));
    m_loan.offer();
    m_queue.async(std::move(done));
}

void X11Pasteboard::handOverToManager(std::function<void()> done) {
    const auto place = m_handOvers.emplace(m_handOvers.end());
    *place = std::make_unique<X11ClipboardHandOver>(
        m_inbox,
        m_queue,
        m_clock.now(),
        m_clipboard.owner().content()->targets(),
        [this, place, done = std::move(done)] {
            m_handOvers.erase(place);
            done();
        });
}

void X11Pasteboard::handOverToCompositor(xcb_window_t compositor, std::function<void()> done) {
    m_compositorHandOver = std::make_unique<X11CompositorHandOver>(
        m_queue, m_clipboard.owner(), compositor, std::move(done));
}

/// A manager that keeps a password would show it in its history.
bool X11Pasteboard::isToBeHandedOver() const {
    const auto* content = m_clipboard.owner().content();
    return content != nullptr && !content->item().empty() && !isSecret(content->item());
}

bool X11Pasteboard::hasClipboardManager() const {
    const auto manager = m_connection->atom("CLIPBOARD_MANAGER");
    return m_connection->selectionOwner(manager) != XCB_WINDOW_NONE;
}

void X11Pasteboard::finishClearing() {
    m_clearing.cancel();
    if (std::exchange(m_isClearing, false))
        m_clipboard.empty();
}

} // namespace quorvane
