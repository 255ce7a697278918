// SPDX-License-Identifier: MIT
#pragma once

#include <loop/Deadline.h>
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
    qsizetype maxBytes = 0;                      ///< the answer is read no further
    std::optional<X11PropertyValue> parameter{}; ///< for targets that take one (ICCCM 2.2)
};

/// What the owner of a selection has given.
struct X11SelectionAnswer {
    X11PropertyValue value;
    bool isCut = false; ///< there was more than was to be read
};

/// One request to the owner of a selection and its answer, whole or in increments (ICCCM 2.4 and
/// 2.7.2). Long properties are read in pieces, between which the event loop turns. It has no time
/// limit: destroying it gives up.
class X11SelectionConversion {
public:
    using Answer = std::optional<X11SelectionAnswer>;

    struct Callbacks {
        /// The owner has sent something.
        std::function<void()> progress;
        /// Called once, last, in a later event-loop iteration; none where the owner refused. It may
        /// destroy the conversion.
        std::function<void(Answer)> done;
    };

    /// The inbox must outlive it.
    X11SelectionConversion(
        X11SelectionInbox& inbox, const X11SelectionRequest& request, Callbacks callbacks);
    ~X11SelectionConversion();

    X11SelectionConversion(const X11SelectionConversion&) = delete;
    X11SelectionConversion& operator=(const X11SelectionConversion&) = delete;

private:
    enum class Stage { Asked, Reading, AwaitingIncrement, Cut, Done };

    void handle(const xcb_generic_event_t& event);
    void takeAnswer(const xcb_selection_notify_event_t& answer);
    void readPiece();
    void takePiece(const X11PropertyPiece& piece);
    void takeEnd();
    [[nodiscard]] bool isNewIncrement(const xcb_generic_event_t& event) const;
    void finish(Answer answer);

    X11SelectionInbox& m_inbox;
    xcb_atom_t m_selection;
    xcb_atom_t m_target;
    xcb_timestamp_t m_time;
    qsizetype m_maxBytes;
    xcb_atom_t m_property;
    Callbacks m_callbacks;
    Stage m_stage = Stage::Asked;
    bool m_isIncremental = false;
    qsizetype m_readOfProperty = 0; ///< bytes of the property that is being read
    std::optional<X11PropertyValue> m_received;
    Deadline m_nextPiece;
    X11Connection::Subscription m_subscription;
};

} // namespace quorvane
