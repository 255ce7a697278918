// SPDX-License-Identifier: MIT
#include "TrayLog.h"

#include <platform_tray/XEmbedHosts.h>
#include <x11_server/QtX11.h>
#include <x11_server/X11Events.h>
#include <x11_server/XcbReply.h>
#include <x11_server/XcbRequests.h>

#include <QGuiApplication>
#include <xcb/xcb.h>
#include <xcb/xfixes.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <string>

namespace quorvane {

namespace {

/// Changes of a selection's owner are reported by this extension alone; null if the server lacks
/// it.
const xcb_query_extension_reply_t* xfixes(xcb_connection_t* x11) {
    const auto* extension = xcb_get_extension_data(x11, &xcb_xfixes_id);
    if (extension == nullptr || extension->present == 0)
        return nullptr;
    const XcbReply<xcb_xfixes_query_version_reply_t> version(xcb_xfixes_query_version_reply(
        x11,
        xcb_xfixes_query_version(x11, XCB_XFIXES_MAJOR_VERSION, XCB_XFIXES_MINOR_VERSION),
        nullptr));
    return version ? extension : nullptr;
}

void select(xcb_connection_t* x11, xcb_atom_t selection, std::uint32_t events) {
    const auto root = xcb_setup_roots_iterator(xcb_get_setup(x11)).data->root;
    xcb_xfixes_select_selection_input(x11, root, selection, events);
}

} // namespace

XEmbedHosts::XEmbedHosts() {
    if (qtx11::connection() != nullptr)
        follow();
}

XEmbedHosts::~XEmbedHosts() {
    if (!m_selection || qGuiApp == nullptr)
        return;
    qGuiApp->removeNativeEventFilter(this);
    select(qtx11::connection(), m_selection->atom, 0);
}

void XEmbedHosts::follow() {
    auto* x11 = qtx11::connection();
    const auto* extension = xfixes(x11);
    if (extension == nullptr) {
        qCWarning(lcTray, "the X server does not tell of selections");
        return;
    }
    const auto atom =
        xcbrequests::atom(x11, "_NET_SYSTEM_TRAY_S" + std::to_string(qtx11::screenNumber()));
    m_selection = Selection{
        atom, static_cast<std::uint8_t>(extension->first_event + XCB_XFIXES_SELECTION_NOTIFY)};
    qGuiApp->installNativeEventFilter(this);
    select(
        x11,
        atom,
        XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER |
            XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
            XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
    m_colors = xcbrequests::atom(x11, "_NET_SYSTEM_TRAY_COLORS");
    watchHost(xcbrequests::selectionOwner(x11, atom));
}

void XEmbedHosts::watchHost(xcb_window_t window) {
    m_host = window;
    m_isThere = window != XCB_WINDOW_NONE;
    if (!m_isThere)
        return;
    auto* x11 = qtx11::connection();
    // A client has one mask per window, and Qt, on the same connection, selects events there too.
    const XcbReply<xcb_get_window_attributes_reply_t> attributes(
        xcb_get_window_attributes_reply(x11, xcb_get_window_attributes(x11, window), nullptr));
    if (!attributes)
        return;
    const std::uint32_t events = attributes->your_event_mask | XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(x11, window, XCB_CW_EVENT_MASK, &events);
}

std::optional<QColor> XEmbedHosts::textColor() const {
    if (!m_isThere)
        return std::nullopt;
    // Red, green and blue of 16 bits each; those of errors, warnings and successes follow.
    constexpr std::uint32_t channels = 3;
    constexpr int bitsPerChannel = 32;
    constexpr std::uint32_t most = 0xffff;
    auto* x11 = qtx11::connection();
    const XcbReply<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        x11, xcb_get_property(x11, 0, m_host, m_colors, XCB_ATOM_CARDINAL, 0, channels), nullptr));
    const bool isWhole = reply && reply->format == bitsPerChannel && reply->value_len == channels;
    if (!isWhole)
        return std::nullopt;
    std::array<std::uint32_t, channels> values{};
    std::memcpy(values.data(), xcb_get_property_value(reply.get()), sizeof(values));
    for (auto& value : values)
        value = std::min(value, most);
    return QColor::fromRgba64(
        static_cast<ushort>(values[0]),
        static_cast<ushort>(values[1]),
        static_cast<ushort>(values[2]));
}

bool XEmbedHosts::nativeEventFilter(const QByteArray& kind, void* message, qintptr* /*result*/) {
    const auto* event = qtx11::eventIn(kind, message);
    if (event == nullptr)
        return false;
    const auto* change = eventAs<xcb_property_notify_event_t>(*event);
    if (change != nullptr && change->window == m_host && change->atom == m_colors)
        QMetaObject::invokeMethod(this, &XEmbedHosts::textColorChanged, Qt::QueuedConnection);
    const auto* notice = eventAs<xcb_xfixes_selection_notify_event_t>(*event, m_selection->notice);
    if (notice == nullptr || notice->selection != m_selection->atom)
        return false;
    const bool wasThere = m_isThere;
    watchHost(notice->owner);
    if (wasThere != m_isThere)
        QMetaObject::invokeMethod(this, &XEmbedHosts::changed, Qt::QueuedConnection);
    QMetaObject::invokeMethod(this, &XEmbedHosts::textColorChanged, Qt::QueuedConnection);
    return false;
}

} // namespace quorvane
