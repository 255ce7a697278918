// SPDX-License-Identifier: MIT
#include "support/PrivateDisplay.h"
#include "support/X11Test.h"

#include <x11_server/X11Connection.h>

#include <string>

namespace quorvane {

namespace {

class ConnectionToX11 : public X11Test {};

TEST(ConnectionToNoServer, IsNull) {
    const ScopedDisplayVariable variable(":nowhere");
    EXPECT_EQ(X11Connection::open(), nullptr);
}

TEST_F(ConnectionToX11, KnowsItsOwnWindows) {
    const auto other = X11Connection::open();
    EXPECT_TRUE(m_connection->owns(xcb_generate_id(m_connection->xcb())));
    EXPECT_FALSE(m_connection->owns(xcb_generate_id(other->xcb())));
    EXPECT_FALSE(m_connection->owns(m_connection->root()));
}

TEST_F(ConnectionToX11, NamesAtoms) {
    const auto atom = m_connection->atom("QUORVANE_TEST");
    EXPECT_EQ(m_connection->atomNames({atom}), QStringList{QStringLiteral("QUORVANE_TEST")});
    EXPECT_EQ(m_connection->atom(QStringLiteral("QUORVANE_TEST")), atom);
    EXPECT_EQ(m_connection->atomNames({0x1fffffff}), QStringList{QString()});
}

TEST_F(ConnectionToX11, KeepsTheLatestUserTime) {
    m_connection->noteUserTime(1000);
    m_connection->noteUserTime(500);
    m_connection->noteUserTime(XCB_CURRENT_TIME);
    EXPECT_EQ(m_connection->lastUserTime(), 1000U);
}

TEST_F(ConnectionToX11, TakesATimeAfterTheClockStartedOverForLater) {
    m_connection->noteUserTime(0xfffffff0);
    m_connection->noteUserTime(16);
    EXPECT_EQ(m_connection->lastUserTime(), 16U);
}

TEST_F(ConnectionToX11, DeliversEventsToItsSubscribersUntilTheyGo) {
    constexpr std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(
        m_connection->xcb(), m_connection->root(), XCB_CW_EVENT_MASK, &events);
    int kept = 0;
    int dropped = 0;
    const auto subscription = m_connection->subscribe([&kept](const auto&) { ++kept; });
    {
        const auto brief = m_connection->subscribe([&dropped](const auto&) { ++dropped; });
    }
    xcb_change_property(
        m_connection->xcb(),
        XCB_PROP_MODE_REPLACE,
        m_connection->root(),
        m_connection->atom("QUORVANE_TEST"),
        XCB_ATOM_STRING,
        8,
        1,
        "x");
    // The reply pulls the event into the library's queue, behind the socket's back.
    m_connection->waitForServer();
    EXPECT_TRUE(waitUntil([&kept] { return kept == 1; }));
    EXPECT_EQ(dropped, 0);
}

/// A connection with a window, which the server destroys when it knows of the connection's end.
class LostConnection : public X11Test {
protected:
    LostConnection() {
        xcb_create_window(
            m_lost->xcb(),
            0,
            m_window,
            m_lost->root(),
            0,
            0,
            1,
            1,
            0,
            XCB_WINDOW_CLASS_INPUT_ONLY,
            XCB_COPY_FROM_PARENT,
            0,
            nullptr);
        m_lost->waitForServer();
    }

    [[nodiscard]] bool isWindowThere() const {
        const XcbReply<xcb_get_geometry_reply_t> reply(xcb_get_geometry_reply(
            m_connection->xcb(), xcb_get_geometry(m_connection->xcb(), m_window), nullptr));
        return reply != nullptr;
    }

    int m_losses = 0;
    std::shared_ptr<X11Connection> m_lost = X11Connection::open([this] { ++m_losses; });
    xcb_window_t m_window = xcb_generate_id(m_lost->xcb());
};

TEST_F(LostConnection, IsToldOnceWhenAnotherClientKillsIt) {
    xcb_kill_client(m_connection->xcb(), m_window);
    m_connection->flush();
    EXPECT_TRUE(waitUntil([this] { return m_losses > 0; }));
    EXPECT_FALSE(isWindowThere());
    EXPECT_EQ(m_losses, 1);
}

TEST_F(LostConnection, IsOverForTheServerWhenARequestWasTooLong) {
    const std::string tooLong(4UL * xcb_get_maximum_request_length(m_lost->xcb()) + 1, 'x');
    xcb_change_property(
        m_lost->xcb(),
        XCB_PROP_MODE_REPLACE,
        m_window,
        XCB_ATOM_WM_NAME,
        XCB_ATOM_STRING,
        8,
        static_cast<std::uint32_t>(tooLong.size()),
        tooLong.data());
    EXPECT_TRUE(isWindowThere());
    EXPECT_TRUE(waitUntil([this] { return m_losses > 0; }));
    EXPECT_TRUE(waitUntil([this] { return !isWindowThere(); }));
    EXPECT_EQ(m_losses, 1);
}

TEST_F(ConnectionToX11, TellsARequestThatFailed) {
    EXPECT_FALSE(m_connection->succeeded(xcb_map_window_checked(m_connection->xcb(), 0x1)));
    EXPECT_TRUE(m_connection->succeeded(xcb_no_operation_checked(m_connection->xcb())));
}

} // namespace

} // namespace quorvane
