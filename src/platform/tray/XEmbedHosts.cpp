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

#include <string>
#include <utility>

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
    m_isThere = xcbrequests::selectionOwner(x11, atom) != XCB_WINDOW_NONE;
}

bool XEmbedHosts::nativeEventFilter(const QByteArray& kind, void* message, qintptr* /*result*/) {
    const auto* event = qtx11::eventIn(kind, message);
    if (event == nullptr)
        return false;
    const auto* notice = eventAs<xcb_xfixes_selection_notify_event_t>(*event, m_selection->notice);
    if (notice == nullptr || notice->selection != m_selection->atom)
        return false;
    const bool isThere = notice->owner != XCB_WINDOW_NONE;
    if (std::exchange(m_isThere, isThere) != isThere)
        QMetaObject::invokeMethod(this, &XEmbedHosts::changed, Qt::QueuedConnection);
    return false;
}

} // namespace quorvane
