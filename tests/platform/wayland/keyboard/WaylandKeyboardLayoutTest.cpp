// SPDX-License-Identifier: MIT
#include "support/TestSeat.h"

#include <platform/KeyCodes.h>
#include <support/WaitUntil.h>

#include <gtest/gtest.h>

#include <chrono>
#include <wayland_keyboard/UsKeymap.h>
#include <wayland_keyboard/WaylandKeyboardLayout.h>

namespace quorvane {
namespace {

using namespace std::chrono_literals;

/// Compiled by name, by the library alone.
QByteArray keymap(const char* layout) {
    return QByteArray("xkb_keymap { xkb_keycodes { include \"evdev\" };"
                      "xkb_types { include \"complete\" }; xkb_compat { include \"complete\" };"
                      "xkb_symbols { include \"pc+") +
           layout + "\" }; };";
}

constexpr std::uint16_t positionOfY = 16;

class LayoutOnWayland : public testing::Test {
protected:
    TestCompositor m_compositor;
    TestSeat m_seat{m_compositor, keymap("de")};
    std::shared_ptr<WaylandConnection> m_connection =
        WaylandConnection::open(m_compositor.environment(), 10s).connection;
    WaylandKeyboardLayout m_layout{m_connection};
    int m_changes = 0;

    void SetUp() override {
        m_connection->listen();
        m_layout.onChanged([this] { ++m_changes; });
        ASSERT_TRUE(waitUntil([this] { return m_changes == 1; }));
    }

    void give(const QByteArray& text) {
        m_seat.setKeymap(text, static_cast<std::uint32_t>(text.size()));
    }
};

TEST_F(LayoutOnWayland, TellsWhatAKeyTypes) {
    EXPECT_EQ(m_layout.characters(positionOfY), u"z");
    EXPECT_EQ(m_layout.shiftedCharacters(positionOfY), u"Z");
    EXPECT_EQ(m_layout.characters(positionOfY), u"z");
}

TEST_F(LayoutOnWayland, FollowsAChange) {
    give(keymap("us"));
    EXPECT_TRUE(waitUntil([this] { return m_changes == 2; }));
    EXPECT_EQ(m_layout.characters(positionOfY), u"y");
}

TEST_F(LayoutOnWayland, IsTheUsersAfterKeysOfOurOwn) {
    const auto ours = makeOwnKeymap();
    ASSERT_TRUE(isOwnKeymap(ours));
    give(ours);
    give(keymap("fr"));
    EXPECT_TRUE(waitUntil([this] { return m_changes == 2; }));
    give(keymap("fr"));
    give(ours);
    EXPECT_TRUE(m_connection->settle(10s));
    EXPECT_EQ(m_changes, 2);
}

TEST_F(LayoutOnWayland, StaysWhereTheNextOneCannotBeRead) {
    m_seat.setKeymap("", 0);
    m_seat.setKeymap("short", 4096);
    m_seat.setKeymap("long", 0xFFFFFFFF);
    EXPECT_TRUE(m_connection->settle(10s));
    EXPECT_EQ(m_changes, 1);
    EXPECT_EQ(m_layout.characters(positionOfY), u"z");
}

TEST_F(LayoutOnWayland, IsUnknownWhereTheTextIsNoKeymap) {
    give("xkb_keymap { nonsense");
    EXPECT_TRUE(waitUntil([this] { return m_changes == 2; }));
    EXPECT_EQ(m_layout.characters(positionOfY), std::nullopt);
}

} // namespace
} // namespace quorvane
