// SPDX-License-Identifier: MIT
#include "X11PlainText.h"
#include "X11QtClipboard.h"

#include <platform/PasteTarget.h>
#include <x11_clipboard/X11Pasteboard.h>
#include <x11_server/QtX11.h>

#include <utility>

namespace quorvane {

X11Pasteboard::X11Pasteboard(std::shared_ptr<X11Connection> connection, MainQueue& queue)
    : m_connection(std::move(connection)),
      m_queue(queue),
      m_windows(m_connection),
      m_clock(m_connection),
      m_inbox(m_connection),
      m_clipboard(m_connection, m_queue, m_clock, m_connection->atom("CLIPBOARD")),
      m_primary(m_connection, m_queue, m_clock, XCB_ATOM_PRIMARY),
      m_loan(m_connection, m_queue, m_clipboard) {
}

void X11Pasteboard::save(SaveHandler done) {
    finishClearing();
    std::optional<X11PasteboardSave::Source> primary;
    if (frontWindowPastesFromPrimary())
        primary = sourceOf(m_primary, QClipboard::Selection);
    const auto place = m_saves.emplace(m_saves.end());
    *place = std::make_unique<X11PasteboardSave>(
        m_inbox,
        m_queue,
        m_clock.now(),
        sourceOf(m_clipboard, QClipboard::Clipboard),
        std::move(primary),
        [this, place, done = std::move(done)](PasteboardContents contents) {
            m_saves.erase(place);
            done(std::move(contents));
        });
}

// Carried out later in this event-loop iteration, and not at all if new contents are set before, as
// nearly always: a clipboard manager that sees an empty clipboard would fill it with the old
// contents.
void X11Pasteboard::clear() {
    m_isClearing = true;
    m_clearing = m_queue.after(Seconds(0), [this] { finishClearing(); });
}

void X11Pasteboard::setString(const QString& text, TextStay stay) {
    std::optional<PasteboardItem> primary;
    if (stay == TextStay::Passing && frontWindowPastesFromPrimary())
        primary = plainTextItem(text, stay);
    put(plainTextItem(text, stay), std::move(primary));
}

void X11Pasteboard::write(
    const PasteboardItem& item, const std::optional<PasteboardItem>& selection) {
    put(item.empty() ? std::nullopt : std::optional(item),
        !selection || selection->empty() ? std::nullopt : selection);
}

void X11Pasteboard::handOver(std::function<void()> done) {
    finishClearing();
    m_loan.suspend();
    const auto* content = m_clipboard.content();
    if (content == nullptr || !hasClipboardManager()) {
        m_loan.offer();
        return m_queue.async(std::move(done));
    }
    const auto place = m_handOvers.emplace(m_handOvers.end());
    *place = std::make_unique<X11ClipboardHandOver>(
        m_inbox, m_queue, m_clock.now(), content->targets(), [this, place, done = std::move(done)] {
            m_handOvers.erase(place);
            done();
        });
}

bool X11Pasteboard::frontWindowPastesFromPrimary() const {
    const auto target = pasteTargetFor(m_windows.classOf(m_windows.active()));
    return target.source == PasteSource::Selection;
}

X11PasteboardSave::Source
X11Pasteboard::sourceOf(const X11SelectionOwner& owner, QClipboard::Mode mode) const {
    // The server knows of an owner after us before we do.
    const auto window = m_connection->selectionOwner(owner.selection());
    if (const auto* content = owner.content(); content != nullptr && m_connection->owns(window))
        return {owner.selection(), content->item()};
    if (window == XCB_WINDOW_NONE)
        return {owner.selection(), PasteboardItem{}};
    if (qtx11::owns(window))
        return {owner.selection(), qtx11::clipboardItem(mode)};
    return {owner.selection(), std::nullopt};
}

bool X11Pasteboard::hasClipboardManager() const {
    const auto manager = m_connection->atom("CLIPBOARD_MANAGER");
    return m_connection->selectionOwner(manager) != XCB_WINDOW_NONE;
}

// Without contents for PRIMARY we give it up, if it is ours.
void X11Pasteboard::put(
    std::optional<PasteboardItem> clipboard, std::optional<PasteboardItem> primary) {
    m_clearing.cancel();
    const bool wasClearing = std::exchange(m_isClearing, false);
    if (clipboard)
        m_clipboard.own(*std::move(clipboard));
    else if (wasClearing)
        m_clipboard.empty();
    if (primary)
        m_primary.own(*std::move(primary));
    else
        m_primary.giveUp();
    m_loan.offer();
}

void X11Pasteboard::finishClearing() {
    if (m_isClearing)
        put(std::nullopt, std::nullopt);
}

} // namespace quorvane
