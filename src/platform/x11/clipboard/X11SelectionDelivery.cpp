// SPDX-License-Identifier: MIT
#include <x11_clipboard/X11SelectionDelivery.h>
#include <x11_server/X11Events.h>

#include <QLoggingCategory>

#include <algorithm>
#include <limits>
#include <numeric>
#include <utility>

namespace quorvane {

namespace {

Q_LOGGING_CATEGORY(lcDelivery, "quorvane.pasteboard.delivery", QtFatalMsg)

// Large enough that few round trips are needed, small enough to leave the server to others.
constexpr qsizetype preferredPiece = 262'144;

} // namespace

X11SelectionDelivery::X11SelectionDelivery(
    std::shared_ptr<X11Connection> connection, MainQueue& queue)
    : m_connection(std::move(connection)),
      m_queue(queue),
      m_largestPiece(std::min(preferredPiece, longestPropertyValue(*m_connection))),
      m_subscription(
          m_connection->subscribe([this](const xcb_generic_event_t& event) { handle(event); })) {
}

bool X11SelectionDelivery::deliver(
    xcb_window_t requestor, xcb_atom_t property, const X11PropertyValue& value) {
    if (value.bytes.size() <= m_largestPiece)
        return writePropertyValue(*m_connection, requestor, property, value);
    if (transferCount() >= mostTransfers)
        return false;
    auto* receiver = requestorAt(requestor);
    if (receiver == nullptr)
        return false;
    receiver->transfers[property] = {value, 0};
    awaitProgress(requestor, *receiver);
    // A lower bound of the size (ICCCM 2.7.2); one that does not fit is cut.
    const auto size = static_cast<std::uint32_t>(
        std::min(value.bytes.size(), qsizetype{std::numeric_limits<std::int32_t>::max()}));
    writePropertyValue(
        *m_connection, requestor, property, propertyValue(m_connection->atom("INCR"), {size}));
    return true;
}

X11SelectionDelivery::Requestor* X11SelectionDelivery::requestorAt(xcb_window_t window) {
    if (const auto known = m_requestors.find(window); known != m_requestors.end())
        return &known->second;
    auto watch = X11WindowWatch::start(m_connection, window);
    if (!watch)
        return nullptr;
    auto& requestor = m_requestors[window];
    requestor.watch = std::move(watch);
    return &requestor;
}

std::size_t X11SelectionDelivery::transferCount() const {
    return std::accumulate(
        m_requestors.begin(),
        m_requestors.end(),
        std::size_t{0},
        [](std::size_t sum, const auto& requestor) {
            return sum + requestor.second.transfers.size();
        });
}

void X11SelectionDelivery::handle(const xcb_generic_event_t& event) {
    if (const auto* end = eventAs<xcb_destroy_notify_event_t>(event))
        m_requestors.erase(end->window);
    const auto* change = eventAs<xcb_property_notify_event_t>(event);
    if (change != nullptr && change->state == XCB_PROPERTY_DELETE)
        sendIncrement(change->window, change->atom);
}

void X11SelectionDelivery::sendIncrement(xcb_window_t window, xcb_atom_t property) {
    const auto requestor = m_requestors.find(window);
    if (requestor == m_requestors.end())
        return;
    auto& transfers = requestor->second.transfers;
    const auto transfer = transfers.find(property);
    if (transfer == transfers.end())
        return;
    auto& [value, sent] = transfer->second;
    const auto size = std::min(m_largestPiece, value.bytes.size() - sent);
    const auto piece = QByteArray::fromRawData(value.bytes.constData() + sent, size);
    writePropertyValue(*m_connection, window, property, {value.type, value.unitBits, piece});
    sent += size;
    if (size > 0)
        return awaitProgress(window, requestor->second);
    // The empty increment was the last.
    transfers.erase(transfer);
    if (transfers.empty())
        m_requestors.erase(requestor);
}

void X11SelectionDelivery::awaitProgress(xcb_window_t window, Requestor& requestor) {
    requestor.end = m_queue.after(longestPause, [this, window] {
        qCDebug(lcDelivery, "0x%x takes no more increments", window);
        m_requestors.erase(window);
    });
}

} // namespace quorvane
