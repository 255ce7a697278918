// SPDX-License-Identifier: MIT
#include <x11_server/X11HiddenWindow.h>
#include <x11_windows/X11StartupNotification.h>

#include <QByteArray>

#include <algorithm>
#include <utility>

namespace quorvane {

namespace {

// So much of a message fits in one event; its end is marked by a zero.
constexpr qsizetype bytesOfAnEvent = 20;
constexpr std::uint8_t bitsOfAByte = 8;

/// As a value in a message, where these end it or have a meaning.
QByteArray quoted(const QString& value) {
    QByteArray text;
    for (const char byte : value.toUtf8()) {
        if (byte == '"' || byte == '\\')
            text.append('\\');
        text.append(byte);
    }
    return '"' + text + '"';
}

} // namespace

X11StartupNotification::X11StartupNotification(std::shared_ptr<X11Connection> connection)
    : m_connection(std::move(connection)) {
}

void X11StartupNotification::begin(const ActivationToken& token) {
    m_startupId = token.startupId;
}

void X11StartupNotification::end() {
    const auto id = std::exchange(m_startupId, {});
    if (!id.isEmpty())
        broadcast("remove: ID=" + quoted(id));
}

/// To all who follow what is launched. The pieces of one message have a window in common, which
/// must live until they have been sent.
void X11StartupNotification::broadcast(const QByteArray& message) const {
    const X11HiddenWindow sender(m_connection);
    const auto bytes = message + '\0';
    auto* type = "_NET_STARTUP_INFO_BEGIN";
    for (qsizetype at = 0; at < bytes.size(); at += bytesOfAnEvent) {
        xcb_client_message_event_t event{};
        event.response_type = XCB_CLIENT_MESSAGE;
        event.format = bitsOfAByte;
        event.window = sender.id();
        event.type = m_connection->atom(std::exchange(type, "_NET_STARTUP_INFO"));
        std::ranges::copy(
            bytes.sliced(at).first(std::min(bytesOfAnEvent, bytes.size() - at)),
            std::begin(event.data.data8));
        xcb_send_event(
            m_connection->xcb(),
            0,
            m_connection->root(),
            XCB_EVENT_MASK_PROPERTY_CHANGE,
            reinterpret_cast<const char*>(&event));
    }
    m_connection->flush();
}

} // namespace quorvane
