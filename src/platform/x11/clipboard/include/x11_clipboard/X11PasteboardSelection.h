// SPDX-License-Identifier: MIT
#pragma once

#include <platform/Pasteboard.h>
#include <x11_clipboard/X11SelectionInbox.h>
#include <x11_clipboard/X11SelectionOwner.h>
#include <x11_clipboard/X11SelectionSource.h>

#include <QClipboard>

#include <memory>
#include <optional>

namespace quorvane {

/// One of the selections that the pasteboard consists of: whose contents stand there, and whether
/// they are a text of ours that is only passing.
class X11PasteboardSelection {
public:
    /// Inbox, clock and delivery must outlive it. The mode is how Qt calls the selection.
    X11PasteboardSelection(
        X11SelectionInbox& inbox,
        const X11ServerClock& clock,
        X11SelectionDelivery& delivery,
        xcb_atom_t selection,
        QClipboard::Mode mode);

    [[nodiscard]] X11SelectionOwner& owner() { return m_owner; }

    [[nodiscard]] const X11SelectionOwner& owner() const { return m_owner; }

    [[nodiscard]] X11SelectionSource source() const;

    /// Whether the item, which was just read here, is the passing text.
    [[nodiscard]] bool isPassing(const PasteboardItem& item) const;

    /// False where another program's contents stand there.
    [[nodiscard]] bool copy(const QString& text);

    /// The same with a text that is restored later. The window is where the paste keys go, if they
    /// paste from this selection.
    [[nodiscard]] bool pass(const QString& text, xcb_window_t target);

    void empty();

    /// Puts the item in the place of the passing text, if that still stands there; `done` runs in a
    /// later event-loop iteration. See `Pasteboard::restore`.
    [[nodiscard]] std::unique_ptr<PasteboardRequest>
    restore(PasteboardItem item, std::function<void()> done);

private:
    [[nodiscard]] xcb_window_t ownerWindow() const;
    [[nodiscard]] bool isOurs(xcb_window_t window) const;
    void giveBack(PasteboardItem item, xcb_timestamp_t time);
    [[nodiscard]] std::unique_ptr<PasteboardRequest>
    askManager(PasteboardItem item, xcb_timestamp_t time, std::function<void()> done);

    X11SelectionInbox& m_inbox;
    const X11ServerClock& m_clock;
    QClipboard::Mode m_mode;
    X11SelectionOwner m_owner;
    std::optional<QString> m_passing; ///< until it is restored, or seen to be replaced
};

} // namespace quorvane
