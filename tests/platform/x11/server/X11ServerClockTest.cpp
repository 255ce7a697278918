// SPDX-License-Identifier: MIT
#include "support/WaitUntil.h"

#include <x11_server/X11Events.h>
#include <x11_server/X11HiddenWindow.h>
#include <x11_server/X11ServerClock.h>

#include <gtest/gtest.h>

namespace quorvane {
namespace {

class X11ServerClockTest : public testing::Test {
protected:
    /// The time that the server gives an event of now.
    xcb_timestamp_t timeOfAnEvent() {
        xcb_timestamp_t time = XCB_CURRENT_TIME;
        const auto subscription =
            m_connection->subscribe([&time, this](const xcb_generic_event_t& event) {
                const auto* change = eventAs<xcb_property_notify_event_t>(event);
                if (change != nullptr && change->window == m_window.id())
                    time = change->time;
            });
        xcb_change_property(
            m_connection->xcb(),
            XCB_PROP_MODE_APPEND,
            m_window.id(),
            XCB_ATOM_WM_NAME,
            XCB_ATOM_STRING,
            8,
            0,
            nullptr);
        m_connection->flush();
        EXPECT_TRUE(waitUntil([&time] { return time != XCB_CURRENT_TIME; }));
        return time;
    }

    std::shared_ptr<X11Connection> m_connection = X11Connection::open();
    X11HiddenWindow m_window{m_connection};
    X11ServerClock m_clock{m_connection};
};

TEST_F(X11ServerClockTest, LiesBetweenTheTimesOfTheEventsBeforeAndAfter) {
    for (int i = 0; i < 20; ++i) {
        const auto before = timeOfAnEvent();
        const auto now = m_clock.now();
        const auto after = timeOfAnEvent();
        EXPECT_LE(before, now);
        EXPECT_LE(now, after);
    }
}

} // namespace
} // namespace quorvane
