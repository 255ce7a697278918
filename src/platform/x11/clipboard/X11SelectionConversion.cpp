// SPDX-License-Identifier: MIT
#include <x11_clipboard/X11SelectionConversion.h>
#include <x11_server/X11Events.h>

#include <utility>

namespace quorvane {

X11SelectionConversion::X11SelectionConversion(
    X11SelectionInbox& inbox, const X11SelectionRequest& request, Callbacks callbacks)
    : m_inbox(inbox),
      m_selection(request.selection),
      m_target(request.target),
      m_property(inbox.lease()),
      m_callbacks(std::move(callbacks)),
      m_subscription(inbox.connection()->subscribe(
          [this](const xcb_generic_event_t& event) { handle(event); })) {
    auto& connection = *m_inbox.connection();
    if (request.parameter)
        writePropertyValue(connection, m_inbox.window(), m_property, *request.parameter);
    xcb_convert_selection(
        connection.xcb(), m_inbox.window(), m_selection, m_target, m_property, request.time);
    connection.flush();
}

X11SelectionConversion::~X11SelectionConversion() {
    if (m_stage == Stage::Done)
        m_inbox.giveBack(m_property);
    else
        m_inbox.abandon(m_property);
}

void X11SelectionConversion::handle(const xcb_generic_event_t& event) {
    if (m_stage == Stage::Asked) {
        // The owner's property is announced before its answer; only the answer counts.
        const auto* answer = eventAs<xcb_selection_notify_event_t>(event);
        if (answer != nullptr && answer->requestor == m_inbox.window())
            takeAnswer(*answer);
    } else if (m_stage == Stage::Incremental) {
        const auto* change = eventAs<xcb_property_notify_event_t>(event);
        if (change != nullptr && change->window == m_inbox.window() && change->atom == m_property &&
            change->state == XCB_PROPERTY_NEW_VALUE)
            takeIncrement();
    }
}

void X11SelectionConversion::takeAnswer(const xcb_selection_notify_event_t& answer) {
    if (answer.selection != m_selection || answer.target != m_target)
        return;
    // A refusal names no property. Two requests for the same get the same refusal.
    if (answer.property == XCB_ATOM_NONE)
        return finish(std::nullopt);
    if (answer.property != m_property)
        return;
    auto value = takeProperty();
    if (!value || value->type != m_inbox.connection()->atom("INCR"))
        return finish(std::move(value));
    m_stage = Stage::Incremental;
    m_callbacks.progress();
}

void X11SelectionConversion::takeIncrement() {
    auto part = takeProperty();
    // An increment that was announced late has been read with its predecessor's announcement.
    if (!part)
        return;
    const bool isLast = part->bytes.isEmpty();
    if (m_received)
        m_received->bytes += part->bytes;
    else
        m_received = std::move(part);
    if (isLast)
        finish(std::move(m_received));
    else
        m_callbacks.progress();
}

void X11SelectionConversion::finish(std::optional<X11PropertyValue> value) {
    m_stage = Stage::Done;
    const auto done = std::move(m_callbacks.done);
    done(std::move(value));
}

std::optional<X11PropertyValue> X11SelectionConversion::takeProperty() {
    auto& connection = *m_inbox.connection();
    auto value = readPropertyValue(connection, m_inbox.window(), m_property, {.deletes = true});
    connection.flush();
    return value;
}

} // namespace quorvane
