// SPDX-License-Identifier: MIT
#include <x11_server/X11WindowWatch.h>

#include <utility>

namespace quorvane {

std::unique_ptr<X11WindowWatch>
X11WindowWatch::start(std::shared_ptr<X11Connection> connection, xcb_window_t window) {
    auto* xcb = connection->xcb();
    const XcbReply<xcb_get_window_attributes_reply_t> attributes(
        xcb_get_window_attributes_reply(xcb, xcb_get_window_attributes(xcb, window), nullptr));
    if (!attributes)
        return nullptr;
    return std::unique_ptr<X11WindowWatch>(
        new X11WindowWatch(std::move(connection), window, attributes->your_event_mask));
}

X11WindowWatch::X11WindowWatch(
    std::shared_ptr<X11Connection> connection, xcb_window_t window, std::uint32_t before)
    : m_connection(std::move(connection)),
      m_window(window),
      m_before(before) {
    select(before | XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY);
}

X11WindowWatch::~X11WindowWatch() {
    select(m_before);
}

// A client has one mask per window: a new one replaces the old.
void X11WindowWatch::select(std::uint32_t events) const {
    xcb_change_window_attributes(m_connection->xcb(), m_window, XCB_CW_EVENT_MASK, &events);
}

} // namespace quorvane
