// SPDX-License-Identifier: MIT
#include "support/TestCompositor.h"

#include <support/WaitUntil.h>

#include <QAbstractEventDispatcher>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <memory>
#include <vector>
#include <wayland-server-protocol.h>
#include <wayland_server/WaylandConnection.h>

namespace quorvane {
namespace {

using namespace std::chrono_literals;

void bindWithoutAWord(wl_client* client, void* /*data*/, std::uint32_t version, std::uint32_t id) {
    wl_resource_create(client, &wl_compositor_interface, static_cast<int>(version), id);
}

class ConnectionToACompositor : public testing::Test {
protected:
    TestCompositor m_compositor;
    int m_losses = 0;

    std::shared_ptr<WaylandConnection> open() {
        auto connection = WaylandConnection::open(m_compositor.environment(), 10s).connection;
        if (connection)
            connection->listen([this] { ++m_losses; });
        return connection;
    }
};

TEST(WaylandConnectionWithoutACompositor, IsNone) {
    const auto opened = WaylandConnection::open(
        [](const char*) { return std::optional(QStringLiteral("/nowhere")); }, 10s);
    EXPECT_EQ(opened.attempt, WaylandConnection::Attempt::Absent);
    EXPECT_EQ(opened.connection, nullptr);
}

TEST(WaylandConnectionWithoutACompositor, IsNoneWhereTheEnvironmentNamesNone) {
    const auto opened = WaylandConnection::open([](const char*) { return std::nullopt; }, 10s);
    EXPECT_EQ(opened.attempt, WaylandConnection::Attempt::Absent);
}

TEST_F(ConnectionToACompositor, IsThereWhenTheCompositorHasAnswered) {
    const auto opened = WaylandConnection::open(m_compositor.environment(), 10s);
    EXPECT_EQ(opened.attempt, WaylandConnection::Attempt::Connected);
    ASSERT_NE(opened.connection, nullptr);
    EXPECT_FALSE(opened.connection->isLost());
}

TEST_F(ConnectionToACompositor, IsGivenUpWhereTheCompositorHangs) {
    m_compositor.hang();
    const auto opened = WaylandConnection::open(m_compositor.environment(), 100ms);
    EXPECT_EQ(opened.attempt, WaylandConnection::Attempt::Silent);
}

// The queue of a socket on which nobody takes connections is full after a few.
TEST_F(ConnectionToACompositor, DoesNotWaitWhereTheCompositorTakesNone) {
    m_compositor.hang();
    for (int i = 0; i < 16; ++i)
        EXPECT_EQ(WaylandConnection::open(m_compositor.environment(), 1ms).connection, nullptr);
}

TEST_F(ConnectionToACompositor, TellsOnceThatItIsLost) {
    const auto connection = open();
    int lost = 0;
    const auto subscription = connection->whenLost([&] { ++lost; });
    m_compositor.stop();
    EXPECT_TRUE(waitUntil([&] { return m_losses > 0; }));
    EXPECT_TRUE(connection->isLost());
    EXPECT_EQ(lost, 1);
    EXPECT_EQ(m_losses, 1);
    EXPECT_FALSE(connection->settle(10s));
    EXPECT_EQ(m_losses, 1);
}

TEST_F(ConnectionToACompositor, IsLostByAnErrorOfTheProtocol) {
    const auto connection = open();
    m_compositor.run([](wl_display* display) {
        auto* client = wl_client_from_link(wl_display_get_client_list(display)->next);
        wl_client_post_implementation_error(client, "as a test wants it");
    });
    EXPECT_TRUE(waitUntil([&] { return m_losses > 0; }));
    EXPECT_TRUE(connection->isLost());
}

TEST_F(ConnectionToACompositor, TakesRequestsThatGoNowhereOnceItIsLost) {
    const auto connection = open();
    m_compositor.stop();
    ASSERT_TRUE(waitUntil([&] { return m_losses > 0; }));
    bool isSettled = false;
    const auto settling = connection->whenSettled([&] { isSettled = true; });
    connection->flush();
    EXPECT_FALSE(connection->settle(10s));
    EXPECT_FALSE(isSettled);
}

TEST_F(ConnectionToACompositor, TellsWhenTheCompositorHasCaughtUp) {
    const auto connection = open();
    bool isSettled = false;
    const auto settling = connection->whenSettled([&] { isSettled = true; });
    EXPECT_FALSE(isSettled);
    EXPECT_TRUE(waitUntil([&] { return isSettled; }));
}

TEST_F(ConnectionToACompositor, AsksNoMoreWhenTheSubscriptionHasGone) {
    const auto connection = open();
    bool isFirstSettled = false;
    bool isSecondSettled = false;
    static_cast<void>(connection->whenSettled([&] { isFirstSettled = true; }));
    const auto second = connection->whenSettled([&] { isSecondSettled = true; });
    EXPECT_TRUE(waitUntil([&] { return isSecondSettled; }));
    EXPECT_FALSE(isFirstSettled);
}

TEST_F(ConnectionToACompositor, KeepsWhatABusyCompositorDoesNotTakeYet) {
    const auto connection = open();
    m_compositor.hang();
    std::vector<WaylandSubscription> questions;
    int answers = 0;
    do
        questions.push_back(connection->whenSettled([&] { ++answers; }));
    while (wl_display_flush(connection->display()) >= 0);
    connection->flush();
    ASSERT_FALSE(connection->isLost());
    m_compositor.resume();
    const auto count = static_cast<int>(questions.size());
    EXPECT_TRUE(waitUntil([&] { return answers == count || m_losses > 0; }));
    EXPECT_EQ(answers, count);
}

// What sends the rest at other times is the end of each turn of the event loop, and the events that
// come: here neither does.
TEST_F(ConnectionToACompositor, SendsTheRestWhenTheCompositorTakesIt) {
    m_compositor.run([](wl_display* display) {
        wl_global_create(display, &wl_compositor_interface, 1, nullptr, bindWithoutAWord);
    });
    const auto connection = open();
    ASSERT_TRUE(connection->globals().offers("wl_compositor"));
    QAbstractEventDispatcher::instance()->disconnect(connection.get());
    m_compositor.hang();
    std::vector<std::unique_ptr<wl_proxy, decltype(&wl_proxy_destroy)>> bound;
    const auto global =
        std::ranges::find(connection->globals().all(), "wl_compositor", &WaylandGlobal::interface);
    do
        bound.emplace_back(
            connection->globals().bind<wl_proxy>(*global, wl_compositor_interface, 1),
            wl_proxy_destroy);
    while (wl_display_flush(connection->display()) >= 0);
    bool isSettled = false;
    const auto settling = connection->whenSettled([&] { isSettled = true; });
    connection->flush();
    m_compositor.resume();
    EXPECT_TRUE(waitUntil([&] { return isSettled; }));
}

} // namespace
} // namespace quorvane
