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

TEST(XEmbedHosts, TellsTheColourThatItsBarWritesIn) {
    FakeXEmbedHost host;
    const XEmbedHosts hosts;
    EXPECT_EQ(hosts.textColor(), std::nullopt);
    std::optional<QColor> told;
    QObject::connect(&hosts, &XEmbedHosts::textColorChanged, [&] { told = hosts.textColor(); });
    host.tellColors({0xffff, 0x8080, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9});
    EXPECT_TRUE(waitUntil([&] { return told == QColor(0xff, 0x80, 0); }));
    host.tellColors({0x2e2e, 0x3434, 0x3636});
    EXPECT_TRUE(waitUntil([&] { return told == QColor(0x2e, 0x34, 0x36); }));
}

TEST(XEmbedHosts, TellsNoColourFromWhatIsNone) {
    FakeXEmbedHost host;
    const XEmbedHosts hosts;
    host.tellColors({0xffff, 0xffff});
    EXPECT_EQ(hosts.textColor(), std::nullopt) << "too short";
    host.tellColors({0xffffffff, 0, 0});
    EXPECT_EQ(hosts.textColor(), QColor(Qt::red)) << "no more than all of it";
}

TEST(XEmbedHosts, TellsOfTheColoursOfAHostThatComesLater) {
    const XEmbedHosts hosts;
    EXPECT_EQ(hosts.textColor(), std::nullopt);
    bool isTold = false;
    QObject::connect(&hosts, &XEmbedHosts::textColorChanged, [&] { isTold = true; });
    FakeXEmbedHost host;
    host.tellColors({0, 0, 0xffff});
    EXPECT_TRUE(waitUntil([&] { return isTold && hosts.textColor() == QColor(Qt::blue); }));
}

} // namespace
} // namespace quorvane
