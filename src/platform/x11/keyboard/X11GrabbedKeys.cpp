// SPDX-License-Identifier: MIT
#include <x11_keyboard/X11GrabbedKeys.h>

#include <algorithm>
#include <utility>

namespace quorvane {

X11GrabbedKeys::Pause::Pause(X11GrabbedKeys& keys) : m_keys(keys) {
    for (const auto& combination : m_keys.m_held)
        m_keys.ungrab(combination);
    // A press that has not reached us yet would bring our own keys to us as well.
    m_keys.freeKeyboard(XCB_CURRENT_TIME);
}

X11GrabbedKeys::Pause::~Pause() {
    for (const auto& combination : m_keys.m_held) {
        for (const auto request : m_keys.grab(combination))
            xcb_discard_reply(m_keys.m_connection->xcb(), request.sequence);
    }
}

X11GrabbedKeys::X11GrabbedKeys(std::shared_ptr<X11Connection> connection)
    : m_connection(std::move(connection)) {
}

bool X11GrabbedKeys::take(const Combination& combination) {
    bool complete = true;
    for (const auto request : grab(combination))
        complete = m_connection->succeeded(request) && complete;
    if (complete)
        m_held.push_back(combination);
    else
        ungrab(combination);
    return complete;
}

void X11GrabbedKeys::drop(const Combination& combination) {
    const auto held = std::ranges::find(m_held, combination);
    if (held == m_held.end())
        return;
    m_held.erase(held);
    ungrab(combination);
    // The answer to a press that is still on its way to us.
    freeKeyboard(XCB_CURRENT_TIME);
}

void X11GrabbedKeys::freeKeyboard(xcb_timestamp_t time) {
    xcb_ungrab_keyboard(m_connection->xcb(), time);
    m_connection->flush();
}

std::vector<xcb_void_cookie_t> X11GrabbedKeys::grab(const Combination& combination) {
    std::vector<xcb_void_cookie_t> requests;
    for (const auto mask : combination.masks) {
        // Asynchronous, so that the keyboard goes on whatever state this process is in.
        requests.push_back(xcb_grab_key_checked(
            m_connection->xcb(),
            0,
            m_connection->root(),
            mask,
            combination.keycode,
            XCB_GRAB_MODE_ASYNC,
            XCB_GRAB_MODE_ASYNC));
    }
    return requests;
}

void X11GrabbedKeys::ungrab(const Combination& combination) {
    for (const auto mask : combination.masks)
        xcb_ungrab_key(m_connection->xcb(), combination.keycode, m_connection->root(), mask);
}

} // namespace quorvane
