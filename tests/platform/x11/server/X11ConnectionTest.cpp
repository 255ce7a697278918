// SPDX-License-Identifier: MIT
#include "support/PrivateDisplay.h"
#include "support/X11Test.h"

#include <x11_server/X11Connection.h>

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

TEST_F(ConnectionToX11, TellsARequestThatFailed) {
    EXPECT_FALSE(m_connection->succeeded(xcb_map_window_checked(m_connection->xcb(), 0x1)));
    EXPECT_TRUE(m_connection->succeeded(xcb_no_operation_checked(m_connection->xcb())));
}

} // namespace

} // namespace quorvane
