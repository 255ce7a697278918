// SPDX-License-Identifier: MIT
#include "support/ForeignWindow.h"

#include <x11_server/X11WindowWatch.h>

#include <gtest/gtest.h>

namespace quorvane {
namespace {

class X11WindowWatchTest : public testing::Test {
protected:
    [[nodiscard]] std::uint32_t selectedEvents() const {
        auto* xcb = m_connection->xcb();
        const XcbReply<xcb_get_window_attributes_reply_t> attributes(
            xcb_get_window_attributes_reply(
                xcb, xcb_get_window_attributes(xcb, m_window.id()), nullptr));
        return attributes ? attributes->your_event_mask : 0;
    }

    void waitForForeignProgram() const {
        auto* xcb = m_window.connection();
        const XcbReply<xcb_get_input_focus_reply_t> reply(
            xcb_get_input_focus_reply(xcb, xcb_get_input_focus(xcb), nullptr));
    }

    std::shared_ptr<X11Connection> m_connection = X11Connection::open();
    ForeignWindow m_window;
};

TEST_F(X11WindowWatchTest, LeavesWhatOthersOfUsHaveSelected) {
    waitForForeignProgram();
    constexpr std::uint32_t before = XCB_EVENT_MASK_FOCUS_CHANGE;
    xcb_change_window_attributes(m_connection->xcb(), m_window.id(), XCB_CW_EVENT_MASK, &before);
    {
        const auto watch = X11WindowWatch::start(m_connection, m_window.id());
        ASSERT_NE(watch, nullptr);
        EXPECT_EQ(
            selectedEvents(),
            before | XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY);
    }
    EXPECT_EQ(selectedEvents(), before);
}

TEST_F(X11WindowWatchTest, AWindowThatIsGoneCannotBeWatched) {
    waitForForeignProgram();
    xcb_destroy_window(m_window.connection(), m_window.id());
    waitForForeignProgram();
    EXPECT_EQ(X11WindowWatch::start(m_connection, m_window.id()), nullptr);
}

} // namespace
} // namespace quorvane
