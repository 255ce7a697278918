// SPDX-License-Identifier: MIT
#include "support/FakeXEmbedHost.h"
#include "support/WaitUntil.h"

#include <platform_tray/XEmbedHosts.h>

#include <gtest/gtest.h>

#include <optional>

namespace quorvane {
namespace {

TEST(XEmbedHosts, OneThatIsThereIsKnownAtOnce) {
    const FakeXEmbedHost host;
    const XEmbedHosts hosts;
    EXPECT_TRUE(hosts.isPossible());
    EXPECT_TRUE(hosts.isThere());
}

TEST(XEmbedHosts, OneComesGoesAndComesAgain) {
    const XEmbedHosts hosts;
    EXPECT_FALSE(hosts.isThere());
    int changes = 0;
    QObject::connect(&hosts, &XEmbedHosts::changed, [&] { ++changes; });
    std::optional<FakeXEmbedHost> host;
    for (int times = 1; times <= 2; ++times) {
        host.emplace();
        EXPECT_TRUE(waitUntil([&] { return changes == 2 * times - 1; }));
        EXPECT_TRUE(hosts.isThere());
        host.reset();
        EXPECT_TRUE(waitUntil([&] { return changes == 2 * times; }));
        EXPECT_FALSE(hosts.isThere());
    }
}

TEST(XEmbedHosts, ASuccessorThatTakesOverIsNoChange) {
    std::optional<FakeXEmbedHost> host(std::in_place);
    const XEmbedHosts hosts;
    int changes = 0;
    QObject::connect(&hosts, &XEmbedHosts::changed, [&] { ++changes; });
    std::optional<FakeXEmbedHost> successor(std::in_place);
    host.reset();
    successor.reset();
    EXPECT_TRUE(waitUntil([&] { return changes == 1; }));
    EXPECT_FALSE(hosts.isThere());
}

} // namespace
} // namespace quorvane
