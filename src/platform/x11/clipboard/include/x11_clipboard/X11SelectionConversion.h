// SPDX-License-Identifier: MIT
#pragma once

#include <x11_clipboard/X11SelectionInbox.h>
#include <x11_server/X11PropertyValue.h>

#include <functional>
#include <optional>

namespace quorvane {

/// What the owner of a selection is asked for.
struct X11SelectionRequest {
    xcb_atom_t selection = XCB_ATOM_NONE;
    xcb_atom_t target = XCB_ATOM_NONE;
    xcb_timestamp_t time = XCB_CURRENT_TIME;
    std::optional<X11PropertyValue> parameter; ///< for targets that take one (ICCCM 2.2)
};

/// One request to the owner of a selection and its answer, whole or in increments (ICCCM 2.4 and
/// 2.7.2). It has no time limit: destroying it gives up.
class X11SelectionConversion {
public:
    struct Callbacks {
        /// The owner has sent something.
        std::function<void()> progress;
        /// Called once, last, in a later event-loop iteration; none where the owner refused. It may
        /// destroy the conversion.
        std::function<void(std::optional<X11PropertyValue>)> done;
    };

    /// The inbox must outlive it.
    X11SelectionConversion(
        X11SelectionInbox& inbox, const X11SelectionRequest& request, Callbacks callbacks);
    ~X11SelectionConversion();

    X11SelectionConversion(const X11SelectionConversion&) = delete;
    X11SelectionConversion& operator=(const X11SelectionConversion&) = delete;

private:
    enum class Stage { Asked, Incremental, Done };

    void handle(const xcb_generic_event_t& event);
    void takeAnswer(const xcb_selection_notify_event_t& answer);
    void takeIncrement();
    void finish(std::optional<X11PropertyValue> value);
    [[nodiscard]] std::optional<X11PropertyValue> takeProperty();

    X11SelectionInbox& m_inbox;
    xcb_atom_t m_selection;
    xcb_atom_t m_target;
    xcb_atom_t m_property;
    Callbacks m_callbacks;
    Stage m_stage = Stage::Asked;
    std::optional<X11PropertyValue> m_received;
    X11Connection::Subscription m_subscription;
};

} // namespace quorvane
