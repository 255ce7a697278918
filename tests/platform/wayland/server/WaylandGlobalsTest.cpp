// SPDX-License-Identifier: MIT
#include "support/TestCompositor.h"

#include <support/WaitUntil.h>

#include <gmock/gmock.h>

#include <chrono>
#include <string>
#include <vector>
#include <wayland-server-core.h>
#include <wayland-server-protocol.h>
#include <wayland_server/WaylandConnection.h>

namespace quorvane {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

class GlobalsOfACompositor : public testing::Test {
protected:
    TestCompositor m_compositor;
    std::vector<std::string> m_log;

    wl_global* offer(const wl_interface& interface, int version) {
        wl_global* global = nullptr;
        m_compositor.run([&](wl_display* display) {
            global = wl_global_create(display, &interface, version, nullptr, ignore);
        });
        return global;
    }

    void withdraw(wl_global* global) {
        m_compositor.run([global](wl_display*) { wl_global_destroy(global); });
    }

    std::shared_ptr<WaylandConnection> connect() {
        auto connection = WaylandConnection::open(m_compositor.environment(), 10s).connection;
        connection->listen();
        return connection;
    }

    [[nodiscard]] WaylandGlobalHandlers logging() {
        return {
            [this](const WaylandGlobal& global) {
                m_log.push_back("came " + std::to_string(global.version));
            },
            [this](std::uint32_t) {
                m_log.emplace_back("went");
            }};
    }

private:
    static void ignore(wl_client* /*client*/, void*, std::uint32_t, std::uint32_t) {}
};

TEST_F(GlobalsOfACompositor, AreKnownWhenTheConnectionIsThere) {
    offer(wl_output_interface, 3);
    const auto connection = connect();
    EXPECT_TRUE(connection->globals().offers("wl_output"));
    EXPECT_FALSE(connection->globals().offers("wl_seat"));
}

TEST_F(GlobalsOfACompositor, AreToldToWhoFollowsThemAtOnce) {
    offer(wl_output_interface, 3);
    offer(wl_seat_interface, 5);
    offer(wl_output_interface, 2);
    const auto connection = connect();
    const auto following = connection->globals().follow("wl_output", logging());
    EXPECT_THAT(m_log, ElementsAre("came 3", "came 2"));
}

TEST_F(GlobalsOfACompositor, ComeAndGo) {
    const auto connection = connect();
    const auto following = connection->globals().follow("wl_output", logging());
    EXPECT_THAT(m_log, IsEmpty());
    auto* output = offer(wl_output_interface, 4);
    EXPECT_TRUE(waitUntil([&] { return m_log.size() == 1; }));
    withdraw(output);
    EXPECT_TRUE(waitUntil([&] { return m_log.size() == 2; }));
    EXPECT_THAT(m_log, ElementsAre("came 4", "went"));
    EXPECT_FALSE(connection->globals().offers("wl_output"));
}

TEST_F(GlobalsOfACompositor, AreNotToldToWhoHasGone) {
    const auto connection = connect();
    static_cast<void>(connection->globals().follow("wl_output", logging()));
    offer(wl_output_interface, 4);
    EXPECT_TRUE(waitUntil([&] { return connection->globals().offers("wl_output"); }));
    EXPECT_THAT(m_log, IsEmpty());
}

} // namespace
} // namespace quorvane
