// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>
#include <platform/PasteboardContents.h>
#include <x11_clipboard/X11SelectionContent.h>
#include <x11_clipboard/X11SelectionDelivery.h>
#include <x11_server/X11HiddenWindow.h>
#include <x11_server/X11ServerClock.h>

#include <functional>
#include <memory>
#include <optional>

namespace quorvane {

/// Can own one selection, and answers those that ask for it while it does (ICCCM 2).
class X11SelectionOwner {
public:
    /// Queue and clock must outlive it.
    X11SelectionOwner(
        std::shared_ptr<X11Connection> connection,
        MainQueue& queue,
        const X11ServerClock& clock,
        xcb_atom_t selection);

    [[nodiscard]] xcb_atom_t selection() const { return m_selection; }

    /// Takes the selection from whoever owns it, and offers the item.
    void own(PasteboardItem item);

    /// Leaves the selection without an owner, whoever owns it now.
    void empty();

    /// The same, but only if it is ours.
    void giveUp();

    /// What we offer; null while we do not own the selection.
    [[nodiscard]] const X11SelectionContent* content() const {
        return m_content ? &*m_content : nullptr;
    }

    /// The server's time as of which we took the selection last.
    [[nodiscard]] xcb_timestamp_t since() const { return m_since; }

private:
    /// As the server has it, which knows of a new owner before we do.
    [[nodiscard]] bool isOwner() const;
    void handle(const xcb_generic_event_t& event);
    void answer(const xcb_selection_request_event_t& request);
    [[nodiscard]] bool serve(const xcb_selection_request_event_t& request, xcb_atom_t property);
    [[nodiscard]] bool convertAll(xcb_window_t requestor, xcb_atom_t property);
    [[nodiscard]] bool convert(xcb_window_t requestor, xcb_atom_t target, xcb_atom_t property);
    [[nodiscard]] std::optional<X11PropertyValue> valueOf(xcb_atom_t target) const;

    std::shared_ptr<X11Connection> m_connection;
    const X11ServerClock& m_clock;
    xcb_atom_t m_selection;
    X11HiddenWindow m_window;
    X11SelectionDelivery m_delivery;
    std::optional<X11SelectionContent> m_content;
    xcb_timestamp_t m_since = XCB_CURRENT_TIME;
    X11Connection::Subscription m_subscription;
};

} // namespace quorvane
