// SPDX-License-Identifier: MIT
#include "TrayLog.h"

#include <platform_tray/XEmbedHosts.h>

#include <QGuiApplication>
#include <xcb/xcb.h>
#include <xcb/xfixes.h>

#include <cstdlib>
#include <memory>
#include <string>
#include <utility>

namespace quorvane {

namespace {

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};

template <typename T>
using Reply = std::unique_ptr<T, Free>;

constexpr std::uint8_t sentByClient = 0x80;

xcb_connection_t* qtConnection() {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 != nullptr ? x11->connection() : nullptr;
}

/// The screen that $DISPLAY names, which is Qt's too.
int screenNumber() {
    int screen = 0;
    char* host = nullptr;
    int display = 0;
    if (xcb_parse_display(nullptr, &host, &display, &screen) != 0)
        std::free(host);
    return screen;
}

xcb_atom_t atomOf(xcb_connection_t* x11, const std::string& name) {
    const auto cookie =
        xcb_intern_atom(x11, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(x11, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

bool hasOwner(xcb_connection_t* x11, xcb_atom_t selection) {
    const Reply<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(x11, xcb_get_selection_owner(x11, selection), nullptr));
    return reply && reply->owner != XCB_WINDOW_NONE;
}

/// Selections tell of their owners only to who has asked for this extension.
const xcb_query_extension_reply_t* xfixes(xcb_connection_t* x11) {
    const auto* extension = xcb_get_extension_data(x11, &xcb_xfixes_id);
    if (extension == nullptr || extension->present == 0)
        return nullptr;
    const Reply<xcb_xfixes_query_version_reply_t> version(xcb_xfixes_query_version_reply(
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
    if (qtConnection() != nullptr)
        follow();
}

XEmbedHosts::~XEmbedHosts() {
    if (!m_selection || qGuiApp == nullptr)
        return;
    qGuiApp->removeNativeEventFilter(this);
    select(qtConnection(), m_selection->atom, 0);
}

void XEmbedHosts::follow() {
    auto* x11 = qtConnection();
    const auto* extension = xfixes(x11);
    if (extension == nullptr) {
        qCWarning(lcTray, "the X server does not tell of selections");
        return;
    }
    const auto atom = atomOf(x11, "_NET_SYSTEM_TRAY_S" + std::to_string(screenNumber()));
    m_selection = Selection{
        atom, static_cast<std::uint8_t>(extension->first_event + XCB_XFIXES_SELECTION_NOTIFY)};
    qGuiApp->installNativeEventFilter(this);
    select(
        x11,
        atom,
        XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER |
            XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
            XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
    m_isThere = hasOwner(x11, atom);
}

bool XEmbedHosts::nativeEventFilter(
    const QByteArray& eventType, void* message, qintptr* /*result*/) {
    if (eventType != QByteArrayLiteral("xcb_generic_event_t"))
        return false;
    const auto* event = static_cast<const xcb_generic_event_t*>(message);
    if ((event->response_type & ~sentByClient) != m_selection->notice)
        return false;
    const auto& notice = *static_cast<const xcb_xfixes_selection_notify_event_t*>(message);
    if (notice.selection != m_selection->atom)
        return false;
    const bool isThere = notice.owner != XCB_WINDOW_NONE;
    if (std::exchange(m_isThere, isThere) != isThere)
        QMetaObject::invokeMethod(this, &XEmbedHosts::changed, Qt::QueuedConnection);
    return false;
}

} // namespace quorvane
