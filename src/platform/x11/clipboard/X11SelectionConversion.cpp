// SPDX-License-Identifier: MIT
#include <x11_clipboard/X11SelectionConversion.h>
#include <x11_server/X11Events.h>

#include <utility>

namespace quorvane {

namespace {

// A piece takes the server and us about a millisecond; the event loop turns before the next.
constexpr qsizetype pieceBytes = 1'048'576;
constexpr qsizetype bytesPerUnit = 4;

} // namespace

X11SelectionConversion::X11SelectionConversion(
    X11SelectionInbox& inbox, const X11SelectionRequest& request, Callbacks callbacks)
    : m_inbox(inbox),
      m_selection(request.selection),
      m_target(request.target),
      m_time(request.time),
      m_maxBytes(request.maxBytes),
      m_property(inbox.lease()),
      m_callbacks(std::move(callbacks)),
      m_subscription(inbox.connection()->subscribe(
          [this](const xcb_generic_event_t& event) { handle(event); })) {
    auto& connection = *m_inbox.connection();
    if (request.parameter)
        writePropertyValue(connection, m_inbox.window(), m_property, *request.parameter);
    xcb_convert_selection(
        connection.xcb(), m_inbox.window(), m_selection, m_target, m_property, m_time);
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
    } else if (m_stage == Stage::AwaitingIncrement && isNewIncrement(event)) {
        readPiece();
    }
}

// A property may have served an earlier request, whose answer comes only now.
void X11SelectionConversion::takeAnswer(const xcb_selection_notify_event_t& answer) {
    if (answer.selection != m_selection || answer.target != m_target || answer.time != m_time)
        return;
    // A refusal names no property. Two requests for the same get the same refusal.
    if (answer.property == XCB_ATOM_NONE)
        return finish(std::nullopt);
    if (answer.property == m_property)
        readPiece();
}

void X11SelectionConversion::readPiece() {
    m_stage = Stage::Reading;
    auto& connection = *m_inbox.connection();
    const X11Reading reading{
        .deletes = true,
        .offset = static_cast<std::uint32_t>(m_readOfProperty / bytesPerUnit),
        .maxLength = static_cast<std::uint32_t>(pieceBytes / bytesPerUnit)};
    auto piece = readPropertyPiece(connection, m_inbox.window(), m_property, reading);
    connection.flush();
    if (piece)
        return takePiece(*piece);
    // An increment that was announced late has been read with its predecessor's announcement.
    if (m_isIncremental)
        m_stage = Stage::AwaitingIncrement;
    else
        finish(std::nullopt);
}

void X11SelectionConversion::takePiece(const X11PropertyPiece& piece) {
    if (!m_isIncremental && piece.value.type == m_inbox.connection()->atom("INCR")) {
        m_isIncremental = true;
        m_stage = Stage::AwaitingIncrement;
        return m_callbacks.progress();
    }
    m_readOfProperty += piece.value.bytes.size();
    if (!m_received)
        m_received = X11PropertyValue{piece.value.type, piece.value.unitBits, {}};
    m_received->bytes.add(piece.value.bytes);
    if (m_received->bytes.size() > m_maxBytes) {
        m_received->bytes.truncate(m_maxBytes);
        m_inbox.discard(m_property);
        return finish(X11SelectionAnswer{*std::exchange(m_received, std::nullopt), true});
    }
    if (piece.isLast)
        return takeEnd();
    m_nextPiece = m_inbox.queue().after(Seconds(0), [this] { readPiece(); });
    m_callbacks.progress();
}

/// The property has been read to its end.
void X11SelectionConversion::takeEnd() {
    const bool isLast = !m_isIncremental || m_readOfProperty == 0;
    m_readOfProperty = 0;
    if (isLast)
        return finish(X11SelectionAnswer{*std::exchange(m_received, std::nullopt), false});
    m_stage = Stage::AwaitingIncrement;
    m_callbacks.progress();
}

bool X11SelectionConversion::isNewIncrement(const xcb_generic_event_t& event) const {
    const auto* change = eventAs<xcb_property_notify_event_t>(event);
    return change != nullptr && change->window == m_inbox.window() && change->atom == m_property &&
           change->state == XCB_PROPERTY_NEW_VALUE;
}

void X11SelectionConversion::finish(Answer answer) {
    // The rest of increments that were cut is still to come.
    m_stage = answer && answer->isCut && m_isIncremental ? Stage::Cut : Stage::Done;
    const auto done = std::move(m_callbacks.done);
    done(std::move(answer));
}

} // namespace quorvane
