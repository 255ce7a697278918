// SPDX-License-Identifier: MIT
#include "ForeignReader.h"

#include "support/WaitUntil.h"

#include <x11_server/X11Events.h>

namespace quorvane {

ForeignReader::ForeignReader(ForeignWindow& window, const QString& selection)
    : m_window(window),
      m_connection(window.connection()),
      m_selection(atom(selection.toLatin1())),
      m_property(atom("QUORVANE_TEST_PASTE")) {
}

std::optional<QByteArray> ForeignReader::read(const QString& target, xcb_timestamp_t time) {
    xcb_convert_selection(
        m_connection, m_window.id(), m_selection, atom(target.toLatin1()), m_property, time);
    xcb_flush(m_connection);
    std::optional<xcb_atom_t> property;
    const bool isAnswered = waitUntil([&] {
        while (const XcbReply<xcb_generic_event_t> event{xcb_poll_for_event(m_connection)}) {
            if (const auto* answer = eventAs<xcb_selection_notify_event_t>(*event))
                property = answer->property;
        }
        return property.has_value();
    });
    return isAnswered && *property != XCB_ATOM_NONE ? std::optional(takeProperty()) : std::nullopt;
}

xcb_atom_t ForeignReader::atom(const QByteArray& name) const {
    const auto cookie =
        xcb_intern_atom(m_connection, 0, static_cast<std::uint16_t>(name.size()), name.constData());
    const XcbReply<xcb_intern_atom_reply_t> reply(
        xcb_intern_atom_reply(m_connection, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

QByteArray ForeignReader::takeProperty() {
    constexpr std::uint32_t maxLength = 1024;
    const auto cookie = xcb_get_property(
        m_connection, 1, m_window.id(), m_property, XCB_GET_PROPERTY_TYPE_ANY, 0, maxLength);
    const XcbReply<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(m_connection, cookie, nullptr));
    return reply ? QByteArray(
                       static_cast<const char*>(xcb_get_property_value(reply.get())),
                       xcb_get_property_value_length(reply.get()))
                 : QByteArray();
}

} // namespace quorvane
