// SPDX-License-Identifier: MIT
#include <x11_server/X11Events.h>
#include <x11_server/XcbReply.h>
#include <x11_windows/X11CompositingWatch.h>

#include <xcb/xfixes.h>

#include <utility>

namespace quorvane {

namespace {

constexpr std::uint32_t anyChangeOfOwner =
    XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER |
    XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
    XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE;

} // namespace

X11CompositingWatch::X11CompositingWatch(std::shared_ptr<X11Connection> connection)
    : m_connection(std::move(connection)),
      m_selection(
          m_connection->atom(QStringLiteral("_NET_WM_CM_S%1").arg(m_connection->screenNumber()))),
      m_subscription(m_connection->subscribe(
          [this](const xcb_generic_event_t& event) { handleEvent(event); })) {
    followManagers();
}

bool X11CompositingWatch::isComposited() const {
    return m_connection->selectionOwner(m_selection) != XCB_WINDOW_NONE;
}

void X11CompositingWatch::followManagers() {
    auto* xcb = m_connection->xcb();
    const auto* extension = xcb_get_extension_data(xcb, &xcb_xfixes_id);
    if (extension == nullptr || extension->present == 0)
        return;
    const XcbReply<xcb_xfixes_query_version_reply_t> version(xcb_xfixes_query_version_reply(
        xcb,
        xcb_xfixes_query_version(xcb, XCB_XFIXES_MAJOR_VERSION, XCB_XFIXES_MINOR_VERSION),
        nullptr));
    if (!version)
        return;
    m_ownerNotice = extension->first_event + XCB_XFIXES_SELECTION_NOTIFY;
    xcb_xfixes_select_selection_input(xcb, m_connection->root(), m_selection, anyChangeOfOwner);
    m_connection->flush();
}

void X11CompositingWatch::handleEvent(const xcb_generic_event_t& event) {
    const auto* owned = eventAs<xcb_xfixes_selection_notify_event_t>(event, m_ownerNotice);
    if (owned != nullptr && owned->selection == m_selection && m_changed)
        m_changed();
}

} // namespace quorvane
