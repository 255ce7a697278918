// SPDX-License-Identifier: MIT
#include "support/FakeWatcher.h"
#include "support/FakeXEmbedHost.h"
#include "support/PrivateBus.h"
#include "support/WaitUntil.h"

#include <platform_tray/TrayHosts.h>

#include <gtest/gtest.h>

#include <optional>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using Presence = StatusNotifierHosts::Presence;

TEST(TrayProtocol, ItemsAreBetterThanEmbeddingAndAreWaitedForWhileTheyMayCome) {
    constexpr auto item = TrayProtocol::StatusNotifierItem;
    EXPECT_EQ(protocolFor(Presence::Present, true), item);
    EXPECT_EQ(protocolFor(Presence::Present, false), item);
    EXPECT_EQ(protocolFor(Presence::Unknown, true), std::nullopt);
    EXPECT_EQ(protocolFor(Presence::Unknown, false), std::nullopt);
    EXPECT_EQ(protocolFor(Presence::Absent, true), TrayProtocol::XEmbed);
    EXPECT_EQ(protocolFor(Presence::Absent, false), std::nullopt);
}

class TrayHostsTest : public testing::Test {
protected:
    PrivateBus bus;
    FakeWatcher watcher{bus.connection()};
    std::optional<TrayHosts> hosts;
    int changes = 0;

    void start() {
        hosts.emplace(bus.connection());
        QObject::connect(&*hosts, &TrayHosts::changed, [this] { ++changes; });
    }

    [[nodiscard]] bool comesToChanges(int count) const {
        return waitUntil([&] { return changes == count; });
    }
};

TEST_F(TrayHostsTest, NobodyIsThereBeforeTheFirstHost) {
    start();
    EXPECT_TRUE(hosts->arePossible());
    EXPECT_FALSE(hosts->areThere());
    EXPECT_EQ(hosts->protocol(), std::nullopt);
}

TEST_F(TrayHostsTest, AHostOfItemsComesGoesAndComesAgain) {
    start();
    watcher.appear();
    EXPECT_TRUE(comesToChanges(1));
    EXPECT_TRUE(hosts->areThere());
    watcher.vanish();
    EXPECT_TRUE(comesToChanges(2));
    EXPECT_FALSE(hosts->areThere());
    watcher.appear();
    EXPECT_TRUE(comesToChanges(3));
    EXPECT_TRUE(hosts->areThere());
    EXPECT_EQ(hosts->protocol(), TrayProtocol::StatusNotifierItem);
}

TEST_F(TrayHostsTest, AnEmbeddingHostCountsWhereThereAreNoItems) {
    start();
    std::optional<FakeXEmbedHost> host(std::in_place);
    EXPECT_TRUE(comesToChanges(1));
    EXPECT_EQ(hosts->protocol(), TrayProtocol::XEmbed);
    host.reset();
    EXPECT_TRUE(comesToChanges(2));
    EXPECT_FALSE(hosts->areThere());
}

TEST_F(TrayHostsTest, OfTwoHostsTheOneOfItemsIsChosen) {
    const FakeXEmbedHost host;
    watcher.appear();
    start();
    EXPECT_EQ(hosts->protocol(), TrayProtocol::StatusNotifierItem);
}

TEST_F(TrayHostsTest, OnceEmbeddedOnlyEmbeddingHostsCount) {
    std::optional<FakeXEmbedHost> host(std::in_place);
    start();
    EXPECT_TRUE(hosts->areThere());
    watcher.appear();
    EXPECT_TRUE(waitUntil([this] { return watcher.questions() == 1; }));
    host.reset();
    EXPECT_TRUE(comesToChanges(1));
    EXPECT_FALSE(hosts->areThere());
    EXPECT_EQ(hosts->protocol(), TrayProtocol::XEmbed);
}

TEST_F(TrayHostsTest, AWatcherThatHangsKeepsTheProtocolOpen) {
    const FakeXEmbedHost host;
    watcher.hang();
    watcher.appear();
    start();
    EXPECT_FALSE(hosts->areThere());
    EXPECT_EQ(hosts->protocol(), std::nullopt);
    watcher.vanish();
    EXPECT_TRUE(comesToChanges(1));
    EXPECT_EQ(hosts->protocol(), TrayProtocol::XEmbed);
}

TEST(TrayHosts, WithoutABusEmbeddingIsLeft) {
    const QDBusConnection noBus(u"no such connection"_s);
    const TrayHosts before(noBus);
    EXPECT_TRUE(before.arePossible());
    EXPECT_FALSE(before.areThere());
    const FakeXEmbedHost host;
    const TrayHosts hosts(noBus);
    EXPECT_TRUE(hosts.areThere());
}

} // namespace
} // namespace quorvane
