// SPDX-License-Identifier: MIT
#pragma once

#include <loop/MainQueue.h>
#include <x11_server/X11PropertyValue.h>
#include <x11_server/X11WindowWatch.h>

#include <map>
#include <memory>

namespace quorvane {

/// Brings values into the properties of those that asked for them: short ones at once, long ones in
/// increments at the requestor's pace (ICCCM 2.7.2), to any number of them side by side. A
/// transfer that has begun goes on after the selection is lost.
class X11SelectionDelivery {
public:
    /// A requestor that takes no increment for this long is given up.
    static constexpr Seconds longestPause{10.0};

    /// Transfers in increments side by side.
    static constexpr std::size_t mostTransfers = 64;

    /// The queue must outlive it.
    X11SelectionDelivery(std::shared_ptr<X11Connection> connection, MainQueue& queue);

    /// False where the requestor is gone, or one transfer more would be too many.
    [[nodiscard]] bool
    deliver(xcb_window_t requestor, xcb_atom_t property, const X11PropertyValue& value);

    /// Whether the requestor is still to take increments.
    [[nodiscard]] bool isUnderWay(xcb_window_t requestor) const {
        return m_requestors.contains(requestor);
    }

private:
    struct Transfer {
        X11PropertyValue value;
        qsizetype sent = 0;
    };

    struct Requestor {
        std::unique_ptr<X11WindowWatch> watch;
        std::map<xcb_atom_t, Transfer> transfers;
        Deadline end;
    };

    [[nodiscard]] Requestor* requestorAt(xcb_window_t window);
    [[nodiscard]] std::size_t transferCount() const;
    void handle(const xcb_generic_event_t& event);
    void sendIncrement(xcb_window_t window, xcb_atom_t property);
    void awaitProgress(xcb_window_t window, Requestor& requestor);

    std::shared_ptr<X11Connection> m_connection;
    MainQueue& m_queue;
    qsizetype m_largestPiece; ///< bytes, whole units of any size
    std::map<xcb_window_t, Requestor> m_requestors;
    X11Connection::Subscription m_subscription;
};

} // namespace quorvane
