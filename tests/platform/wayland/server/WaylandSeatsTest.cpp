// SPDX-License-Identifier: MIT
#include "support/TestCompositor.h"

#include <support/WaitUntil.h>

#include <gtest/gtest.h>

#include <chrono>
#include <wayland-server-core.h>
#include <wayland-server-protocol.h>
#include <wayland_server/WaylandSeats.h>

namespace quorvane {
namespace {

using namespace std::chrono_literals;

class SeatsOfACompositor : public testing::Test {
protected:
    TestCompositor m_compositor;
    int m_changes = 0;

    wl_global* offerSeat() {
        wl_global* global = nullptr;
        m_compositor.run([&](wl_display* display) {
            global = wl_global_create(display, &wl_seat_interface, 7, nullptr, bind);
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

private:
    static void release(wl_client* /*client*/, wl_resource* seat) { wl_resource_destroy(seat); }

    static void bind(wl_client* client, void*, std::uint32_t version, std::uint32_t id) {
        static constexpr struct wl_seat_interface requests { nullptr, nullptr, nullptr, release };

        auto* seat = wl_resource_create(client, &wl_seat_interface, static_cast<int>(version), id);
        wl_resource_set_implementation(seat, &requests, nullptr, nullptr);
    }
};

TEST_F(SeatsOfACompositor, AreNoneWhereTheCompositorHasNone) {
    const WaylandSeats seats(connect());
    EXPECT_EQ(seats.first(), nullptr);
}

TEST_F(SeatsOfACompositor, BeginWithTheFirst) {
    offerSeat();
    offerSeat();
    const auto connection = connect();
    const WaylandSeats seats(connection);
    EXPECT_NE(seats.first(), nullptr);
    EXPECT_TRUE(connection->settle(10s));
}

TEST_F(SeatsOfACompositor, ComeAndGo) {
    const auto connection = connect();
    WaylandSeats seats(connection);
    const auto following = seats.whenChanged([this] { ++m_changes; });
    auto* first = offerSeat();
    EXPECT_TRUE(waitUntil([&] { return m_changes == 1; }));
    EXPECT_NE(seats.first(), nullptr);
    offerSeat();
    const auto* before = seats.first();
    withdraw(first);
    EXPECT_TRUE(waitUntil([&] { return m_changes == 2; }));
    EXPECT_NE(seats.first(), nullptr);
    EXPECT_NE(seats.first(), before);
    EXPECT_TRUE(connection->settle(10s));
}

} // namespace
} // namespace quorvane
