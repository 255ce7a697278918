// SPDX-License-Identifier: MIT
#include <x11_clipboard/X11PasteboardSave.h>

#include <utility>

namespace quorvane {

X11PasteboardSave::X11PasteboardSave(
    X11SelectionInbox& inbox,
    MainQueue& queue,
    xcb_timestamp_t time,
    X11SelectionSource clipboard,
    std::optional<X11SelectionSource> primary,
    Pasteboard::SaveHandler done)
    : m_inbox(inbox),
      m_queue(queue),
      m_done(std::move(done)) {
    begin(m_clipboard, std::move(clipboard), time);
    if (primary)
        begin(m_primary.emplace(), *std::move(primary), time);
    // Contents that are at hand are handed over in a later event-loop iteration, too.
    m_soon = m_queue.after(Seconds(0), [this] { finishWhenComplete(); });
}

void X11PasteboardSave::begin(Part& part, X11SelectionSource source, xcb_timestamp_t time) {
    part.item = std::move(source.atHand);
    if (part.item)
        return;
    part.reading = std::make_unique<X11SelectionSave>(
        m_inbox, m_queue, source.selection, time, [this, &part](PasteboardItem item) {
            part.item = std::move(item);
            finishWhenComplete();
        });
}

void X11PasteboardSave::finishWhenComplete() {
    if (!m_clipboard.item || (m_primary && !m_primary->item))
        return;
    PasteboardContents contents;
    if (!m_clipboard.item->empty())
        contents.items.push_back(*std::move(m_clipboard.item));
    if (m_primary)
        contents.selection = std::move(m_primary->item);
    const auto done = std::move(m_done);
    done(std::move(contents));
}

} // namespace quorvane
