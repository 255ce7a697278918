// SPDX-License-Identifier: MIT

#include <x11_keyboard/X11AccessibilityRight.h>

#include <xcb/xtest.h>

#include <utility>

namespace quorvane {

bool hasTestExtension(const X11Connection& connection) {
    auto* xcb = connection.xcb();
    if (xcb_connection_has_error(xcb) != 0)
        return false;
    // Asked first: a request to an extension that is not there shuts the connection down.
    const auto* extension = xcb_get_extension_data(xcb, &xcb_test_id);
    if (extension == nullptr || extension->present == 0)
        return false;
    const auto cookie = xcb_test_get_version(xcb, XCB_TEST_MAJOR_VERSION, XCB_TEST_MINOR_VERSION);
    const XcbReply<xcb_test_get_version_reply_t> version(
        xcb_test_get_version_reply(xcb, cookie, nullptr));
    return version != nullptr;
}

X11AccessibilityRight::X11AccessibilityRight(std::shared_ptr<X11Connection> connection)
    : m_connection(std::move(connection)) {
}

bool X11AccessibilityRight::mayReadShortcut() const {
    return hasTestExtension(*m_connection);
}

TypingRight X11AccessibilityRight::typing() const {
    return hasTestExtension(*m_connection) ? TypingRight::Granted : TypingRight::Unavailable;
}

} // namespace quorvane
