// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>
#include <platform/PasteboardContents.h>
#include <x11_clipboard/X11LateText.h>
#include <x11_clipboard/X11PassingText.h>
#include <x11_clipboard/X11SelectionContent.h>
#include <x11_clipboard/X11SelectionDelivery.h>
#include <x11_server/X11HiddenWindow.h>
#include <x11_server/X11ServerClock.h>

#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <utility>

namespace quorvane {

/// Can own one selection, and answers those that ask for it while it does (ICCCM 2).
class X11SelectionOwner {
public:
    /// Pairs of a target and a property in one request (MULTIPLE); a longer one is refused.
    static constexpr std::size_t mostPairs = 256;

    /// Queue, clock and delivery must outlive it. All selections share one delivery: a program may
    /// read several of them through one window.
    X11SelectionOwner(
        std::shared_ptr<X11Connection> connection,
        MainQueue& queue,
        const X11ServerClock& clock,
        X11SelectionDelivery& delivery,
        xcb_atom_t selection);

    [[nodiscard]] xcb_atom_t selection() const { return m_selection; }

    /// Takes the selection from whoever owns it, and offers the item; false where another program
    /// has taken it first.
    [[nodiscard]] bool own(PasteboardItem item);

    /// The same with a text that is to be taken back, once the client that the window belongs to
    /// has fetched it. Without a window nobody in particular is to fetch it.
    [[nodiscard]] bool pass(PasteboardItem item, xcb_window_t target);

    /// The same with what stood there before the text that was passed; nothing where an item is
    /// empty. False where somebody has taken the selection since that time of the server.
    [[nodiscard]] bool takeBack(PasteboardItem item, xcb_timestamp_t time);

    /// Offers again, under another owner for a while, what it has offered before.
    void resume(PasteboardItem item);

    /// Leaves the selection without an owner, whoever owns it now.
    void empty();

    /// What we offer; null while we do not own the selection.
    [[nodiscard]] const X11SelectionContent* content() const {
        return m_content ? &*m_content : nullptr;
    }

    /// Whether the client that a window belongs to has read any of what we offer.
    [[nodiscard]] bool isReadBy(xcb_window_t window) const;

    /// Called when somebody has read some of it; replaces an earlier handler.
    void onRead(std::function<void()> handler) { m_read = std::move(handler); }

    /// Whether somebody is still to get a text that has been taken back.
    [[nodiscard]] bool hasLateText() const { return m_late != nullptr; }

    /// When the last one has got it, or has lost the right to it.
    void onLateTextEnded(std::function<void()> handler) { m_lateTextEnded = std::move(handler); }

    /// The server's time as of which we took the selection last.
    [[nodiscard]] xcb_timestamp_t since() const { return m_since; }

private:
    /// As the server has it, which knows of a new owner before we do.
    [[nodiscard]] bool isOwner() const;
    void forget();
    [[nodiscard]] bool take(PasteboardItem item, xcb_timestamp_t time);
    void release(xcb_timestamp_t time);
    [[nodiscard]] std::unique_ptr<X11LateText> lateText(xcb_timestamp_t takenBack);
    void endLateText();

    void handle(const xcb_generic_event_t& event);
    void noteLoss();
    void answer(const xcb_selection_request_event_t& request);
    [[nodiscard]] const X11SelectionContent*
    contentFor(const xcb_selection_request_event_t& request) const;
    [[nodiscard]] bool serve(
        const xcb_selection_request_event_t& request,
        xcb_atom_t property,
        const X11SelectionContent& content);
    [[nodiscard]] bool
    convertAll(xcb_window_t requestor, xcb_atom_t property, const X11SelectionContent& content);
    [[nodiscard]] bool convert(
        xcb_window_t requestor,
        xcb_atom_t target,
        xcb_atom_t property,
        const X11SelectionContent& content);
    [[nodiscard]] std::optional<X11PropertyValue>
    valueOf(xcb_atom_t target, const X11SelectionContent& content) const;
    void noteReader(const xcb_selection_request_event_t& request);
    void noteFetch(xcb_window_t requestor, const X11SelectionContent& content);
    [[nodiscard]] std::uint32_t clientOf(xcb_window_t window) const;

    std::shared_ptr<X11Connection> m_connection;
    MainQueue& m_queue;
    const X11ServerClock& m_clock;
    xcb_atom_t m_selection;
    X11HiddenWindow m_window;
    X11SelectionDelivery& m_delivery;
    std::optional<X11SelectionContent> m_content;
    std::optional<X11PassingText> m_passing; ///< while its restore is due
    std::set<std::uint32_t> m_readers;       ///< clients, of the content
    std::function<void()> m_read = [] {
    };
    std::unique_ptr<X11LateText> m_late;
    bool m_isLateTextFetched = false;
    std::function<void()> m_lateTextEnded = [] {
    };
    xcb_timestamp_t m_since = XCB_CURRENT_TIME;
    X11Connection::Subscription m_subscription;
};

} // namespace quorvane
