// SPDX-License-Identifier: MIT
#include <x11_windows/X11KeyboardProbe.h>

namespace quorvane {

// A grab for a window that is not viewable is never given: of its two refusals, the one that names
// another client's grab comes first. A grab that is given and returned would show in the focus of
// the window that has it.
bool X11KeyboardProbe::isGrabbedByAnother() const {
    constexpr std::uint8_t ownerEvents = 0;
    auto* xcb = m_connection->xcb();
    const auto cookie = xcb_grab_keyboard(
        xcb,
        ownerEvents,
        m_neverViewable.id(),
        XCB_CURRENT_TIME,
        XCB_GRAB_MODE_ASYNC,
        XCB_GRAB_MODE_ASYNC);
    const XcbReply<xcb_grab_keyboard_reply_t> reply(xcb_grab_keyboard_reply(xcb, cookie, nullptr));
    return reply && reply->status == XCB_GRAB_STATUS_ALREADY_GRABBED;
}

} // namespace quorvane
