// SPDX-License-Identifier: MIT
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
    xcb_atom_t selection)
    : m_connection(std::move(connection)),
      m_clock(clock),
      m_selection(selection),
      m_window(m_connection),
      m_delivery(m_connection, queue),
      m_subscription(
          m_connection->subscribe([this](const xcb_generic_event_t& event) { handle(event); })) {
}

void X11SelectionOwner::own(PasteboardItem item) {
    m_content.reset();
    m_since = m_clock.now();
    xcb_set_selection_owner(m_connection->xcb(), m_window.id(), m_selection, m_since);
    // The server does not report a refusal.
    if (isOwner())
        m_content.emplace(*m_connection, std::move(item));
    else
        qCDebug(lcOwner, "another program took selection %u first", m_selection);
}

void X11SelectionOwner::empty() {
    m_content.reset();
    xcb_set_selection_owner(m_connection->xcb(), XCB_WINDOW_NONE, m_selection, m_clock.now());
    m_connection->flush();
}

void X11SelectionOwner::giveUp() {
    if (m_content && isOwner())
        empty();
}

bool X11SelectionOwner::isOwner() const {
    return m_connection->selectionOwner(m_selection) == m_window.id();
}

void X11SelectionOwner::handle(const xcb_generic_event_t& event) {
    const auto* loss = eventAs<xcb_selection_clear_event_t>(event);
    // The event may be about an earlier loss, since when we have taken the selection again.
    if (loss != nullptr && loss->owner == m_window.id() && !isOwner())
        m_content.reset();
    const auto* request = eventAs<xcb_selection_request_event_t>(event);
    if (request != nullptr && request->owner == m_window.id())
        answer(*request);
}

void X11SelectionOwner::answer(const xcb_selection_request_event_t& request) {
    // Obsolete clients leave the choice of the property to us (ICCCM 2.2).
    const auto property = request.property == XCB_ATOM_NONE ? request.target : request.property;
    const bool isServed = serve(request, property);
    sendAnswer(*m_connection, request, isServed ? property : xcb_atom_t{XCB_ATOM_NONE});
    m_connection->flush();
}

bool X11SelectionOwner::serve(const xcb_selection_request_event_t& request, xcb_atom_t property) {
    // The server's clock starts over after 49.7 days.
    const bool isMeantForPredecessor =
        request.time != XCB_CURRENT_TIME && static_cast<std::int32_t>(request.time - m_since) < 0;
    if (!m_content || isMeantForPredecessor)
        return false;
    if (request.target != m_connection->atom("MULTIPLE"))
        return convert(request.requestor, request.target, property);
    return request.property != XCB_ATOM_NONE && convertAll(request.requestor, property);
}

// ICCCM 2.6.2: pairs of a target and a property; a target that cannot be served becomes None.
bool X11SelectionOwner::convertAll(xcb_window_t requestor, xcb_atom_t property) {
    const auto value = readPropertyValue(*m_connection, requestor, property);
    if (!value || value->unitBits != 32)
        return false;
    auto pairs = unitsOf(*value);
    for (std::size_t i = 0; i + 1 < pairs.size(); i += 2) {
        const auto destination = pairs[i + 1];
        if (destination == XCB_ATOM_NONE || !convert(requestor, pairs[i], destination))
            pairs[i] = XCB_ATOM_NONE;
    }
    writePropertyValue(*m_connection, requestor, property, propertyValue(value->type, pairs));
    return true;
}

bool X11SelectionOwner::convert(xcb_window_t requestor, xcb_atom_t target, xcb_atom_t property) {
    const auto value = valueOf(target);
    return value && m_delivery.deliver(requestor, property, *value);
}

std::optional<X11PropertyValue> X11SelectionOwner::valueOf(xcb_atom_t target) const {
    const auto targets = m_connection->atom("TARGETS");
    const auto timestamp = m_connection->atom("TIMESTAMP");
    if (target == timestamp)
        return propertyValue(XCB_ATOM_INTEGER, {m_since});
    if (target != targets)
        return m_content->value(target);
    std::vector<xcb_atom_t> all{targets, timestamp, m_connection->atom("MULTIPLE")};
    all.insert(all.end(), m_content->targets().begin(), m_content->targets().end());
    return propertyValue(XCB_ATOM_ATOM, all);
}

} // namespace quorvane
