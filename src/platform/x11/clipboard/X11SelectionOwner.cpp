// SPDX-License-Identifier: MIT
#include "X11TimeOrder.h"

#include <x11_clipboard/X11SelectionOwner.h>
#include <x11_server/X11Events.h>

#include <QLoggingCategory>

#include <cstring>
#include <utility>
#include <vector>

namespace quorvane {

namespace {

Q_LOGGING_CATEGORY(lcOwner, "quorvane.pasteboard.owner", QtFatalMsg)

void sendAnswer(
    const X11Connection& connection,
    const xcb_selection_request_event_t& request,
    xcb_atom_t property) {
    xcb_selection_notify_event_t notice{};
    notice.response_type = XCB_SELECTION_NOTIFY;
    notice.time = request.time;
    notice.requestor = request.requestor;
    notice.selection = request.selection;
    notice.target = request.target;
    notice.property = property;
    // Events are 32 bytes on the wire, this one is shorter.
    char event[32]{};
    static_assert(sizeof notice <= sizeof event);
    std::memcpy(event, &notice, sizeof notice);
    xcb_send_event(connection.xcb(), 0, request.requestor, XCB_EVENT_MASK_NO_EVENT, event);
}

} // namespace

X11SelectionOwner::X11SelectionOwner(
    std::shared_ptr<X11Connection> connection,
    MainQueue& queue,
    const X11ServerClock& clock,
    X11SelectionDelivery& delivery,
    xcb_atom_t selection)
    : m_connection(std::move(connection)),
      m_queue(queue),
      m_clock(clock),
      m_selection(selection),
      m_window(m_connection),
      m_delivery(delivery),
      m_subscription(
          m_connection->subscribe([this](const xcb_generic_event_t& event) { handle(event); })) {
}

bool X11SelectionOwner::own(PasteboardItem item) {
    forget();
    return take(std::move(item), m_clock.now());
}

bool X11SelectionOwner::pass(PasteboardItem item, xcb_window_t target) {
    if (!own(std::move(item)))
        return false;
    if (target != XCB_WINDOW_NONE)
        m_passing = X11PassingText{*m_content, clientOf(target), m_since};
    return true;
}

bool X11SelectionOwner::takeBack(PasteboardItem item, xcb_timestamp_t time) {
    auto late = lateText(time);
    forget();
    if (item.empty() && !late) {
        release(time);
        return true;
    }
    const bool isTaken = take(std::move(item), time);
    if (isTaken)
        m_late = std::move(late);
    return isTaken;
}

void X11SelectionOwner::resume(PasteboardItem item) {
    if (!take(std::move(item), m_clock.now()))
        qCDebug(lcOwner, "another program took selection %u first", m_selection);
}

void X11SelectionOwner::empty() {
    forget();
    release(m_clock.now());
}

bool X11SelectionOwner::isOwner() const {
    return m_connection->selectionOwner(m_selection) == m_window.id();
}

void X11SelectionOwner::forget() {
    m_passing.reset();
    m_late.reset();
}

bool X11SelectionOwner::take(PasteboardItem item, xcb_timestamp_t time) {
    m_content.reset();
    m_readers.clear();
    m_since = time;
    xcb_set_selection_owner(m_connection->xcb(), m_window.id(), m_selection, time);
    // The server does not report a refusal.
    if (!isOwner())
        return false;
    m_content.emplace(*m_connection, std::move(item));
    return true;
}

void X11SelectionOwner::release(xcb_timestamp_t time) {
    m_content.reset();
    xcb_set_selection_owner(m_connection->xcb(), XCB_WINDOW_NONE, m_selection, time);
    m_connection->flush();
}

std::unique_ptr<X11LateText> X11SelectionOwner::lateText(xcb_timestamp_t takenBack) {
    if (!m_passing || m_passing->isFetched)
        return nullptr;
    return std::make_unique<X11LateText>(m_queue, *m_passing, takenBack, [this] { endLateText(); });
}

/// Where nothing else was to be offered, the selection was only kept for the late text.
void X11SelectionOwner::endLateText() {
    m_late.reset();
    if (m_content && m_content->item().empty())
        release(m_since);
    m_lateTextEnded();
}

void X11SelectionOwner::handle(const xcb_generic_event_t& event) {
    const auto* loss = eventAs<xcb_selection_clear_event_t>(event);
    // The event may be about an earlier loss, since when we have taken the selection again.
    if (loss != nullptr && loss->owner == m_window.id() && !isOwner())
        noteLoss();
    const auto* request = eventAs<xcb_selection_request_event_t>(event);
    if (request != nullptr && request->owner == m_window.id())
        answer(*request);
}

void X11SelectionOwner::noteLoss() {
    m_content.reset();
    m_late.reset();
    if (m_passing)
        m_passing->wasLost = true;
}

void X11SelectionOwner::answer(const xcb_selection_request_event_t& request) {
    // Obsolete clients leave the choice of the property to us (ICCCM 2.2).
    const auto property = request.property == XCB_ATOM_NONE ? request.target : request.property;
    const auto* content = contentFor(request);
    const bool isServed = content != nullptr && serve(request, property, *content);
    sendAnswer(*m_connection, request, isServed ? property : xcb_atom_t{XCB_ATOM_NONE});
    m_connection->flush();
    if (isServed && content == this->content())
        noteReader(request);
    if (std::exchange(m_isLateTextFetched, false))
        endLateText();
}

const X11SelectionContent*
X11SelectionOwner::contentFor(const xcb_selection_request_event_t& request) const {
    if (m_late && m_late->isFor(request, clientOf(request.requestor)))
        return &m_late->content();
    const bool isMeantForPredecessor =
        request.time != XCB_CURRENT_TIME && isEarlier(request.time, m_since);
    return isMeantForPredecessor ? nullptr : content();
}

bool X11SelectionOwner::serve(
    const xcb_selection_request_event_t& request,
    xcb_atom_t property,
    const X11SelectionContent& content) {
    if (request.target != m_connection->atom("MULTIPLE"))
        return convert(request.requestor, request.target, property, content);
    return request.property != XCB_ATOM_NONE && convertAll(request.requestor, property, content);
}

// ICCCM 2.6.2: pairs of a target and a property; a target that cannot be served becomes None.
bool X11SelectionOwner::convertAll(
    xcb_window_t requestor, xcb_atom_t property, const X11SelectionContent& content) {
    const auto asked = readPropertyPiece(
        *m_connection,
        requestor,
        property,
        {.maxLength = static_cast<std::uint32_t>(2 * mostPairs)});
    if (!asked || asked->value.unitBits != 32 || !asked->isLast)
        return false;
    auto pairs = unitsOf(asked->value);
    for (std::size_t i = 0; i + 1 < pairs.size(); i += 2) {
        const auto destination = pairs[i + 1];
        if (destination == XCB_ATOM_NONE || !convert(requestor, pairs[i], destination, content))
            pairs[i] = XCB_ATOM_NONE;
    }
    return writePropertyValue(
        *m_connection, requestor, property, propertyValue(asked->value.type, pairs));
}

bool X11SelectionOwner::convert(
    xcb_window_t requestor,
    xcb_atom_t target,
    xcb_atom_t property,
    const X11SelectionContent& content) {
    const auto value = valueOf(target, content);
    if (!value || !m_delivery.deliver(requestor, property, *value))
        return false;
    if (content.isText(target))
        noteFetch(requestor, content);
    return true;
}

std::optional<X11PropertyValue>
X11SelectionOwner::valueOf(xcb_atom_t target, const X11SelectionContent& content) const {
    const auto targets = m_connection->atom("TARGETS");
    const auto timestamp = m_connection->atom("TIMESTAMP");
    if (target == timestamp)
        return propertyValue(XCB_ATOM_INTEGER, {m_since});
    if (target != targets)
        return content.value(target);
    std::vector<xcb_atom_t> all{targets, timestamp, m_connection->atom("MULTIPLE")};
    all.insert(all.end(), content.targets().begin(), content.targets().end());
    return propertyValue(XCB_ATOM_ATOM, all);
}

/// What goes in increments is on its way for as long as the reader takes.
void X11SelectionOwner::noteReader(const xcb_selection_request_event_t& request) {
    const bool isQuestion = request.target == m_connection->atom("TARGETS") ||
                            request.target == m_connection->atom("TIMESTAMP");
    if (isQuestion || m_delivery.isUnderWay(request.requestor))
        return;
    qCDebug(lcOwner, "0x%x has read selection %u", request.requestor, m_selection);
    m_readers.insert(clientOf(request.requestor));
    const auto read = m_read;
    read();
}

void X11SelectionOwner::noteFetch(xcb_window_t requestor, const X11SelectionContent& content) {
    if (m_passing && m_passing->client == clientOf(requestor))
        m_passing->isFetched = true;
    if (m_late && &content == &m_late->content())
        m_isLateTextFetched = true;
}

bool X11SelectionOwner::isReadBy(xcb_window_t window) const {
    return m_readers.contains(clientOf(window));
}

std::uint32_t X11SelectionOwner::clientOf(xcb_window_t window) const {
    return window & ~xcb_get_setup(m_connection->xcb())->resource_id_mask;
}

} // namespace quorvane
