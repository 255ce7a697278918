// SPDX-License-Identifier: MIT
#include "X11KeyGrab.h"

#include <utility>

namespace quorvane {

std::unique_ptr<X11KeyGrab>
X11KeyGrab::take(std::shared_ptr<X11Connection> connection, Combination combination) {
    std::unique_ptr<X11KeyGrab> grab(new X11KeyGrab(std::move(connection), std::move(combination)));
    return grab->grabAll() ? std::move(grab) : nullptr;
}

X11KeyGrab::X11KeyGrab(std::shared_ptr<X11Connection> connection, Combination combination)
    : m_connection(std::move(connection)),
      m_combination(std::move(combination)) {
}

X11KeyGrab::~X11KeyGrab() {
    for (const auto mask : m_combination.masks)
        xcb_ungrab_key(m_connection->xcb(), m_combination.keycode, m_connection->root(), mask);
    // A press may be on its way to us: without an answer the keyboard would stay halted for good.
    replay(XCB_CURRENT_TIME);
}

bool X11KeyGrab::grabAll() {
    std::vector<xcb_void_cookie_t> requests;
    for (const auto mask : m_combination.masks) {
        requests.push_back(xcb_grab_key_checked(
            m_connection->xcb(),
            0,
            m_connection->root(),
            mask,
            m_combination.keycode,
            XCB_GRAB_MODE_ASYNC,
            XCB_GRAB_MODE_SYNC));
    }
    m_firstRequest = requests.front().sequence;
    bool complete = true;
    for (const auto request : requests)
        complete = m_connection->succeeded(request) && complete;
    return complete;
}

bool X11KeyGrab::canHaveSent(const xcb_generic_event_t& event) const {
    return static_cast<std::int32_t>(event.full_sequence - m_firstRequest) >= 0;
}

void X11KeyGrab::swallow() {
    // Not AllowEvents: AsyncKeyboard keeps the release from the window with the focus as well, and
    // followed by an ungrab it loses the release of a short tap.
    xcb_ungrab_keyboard(m_connection->xcb(), XCB_CURRENT_TIME);
    m_connection->flush();
}

void X11KeyGrab::replay(xcb_timestamp_t time) {
    xcb_allow_events(m_connection->xcb(), XCB_ALLOW_REPLAY_KEYBOARD, time);
    m_connection->flush();
}

} // namespace quorvane
