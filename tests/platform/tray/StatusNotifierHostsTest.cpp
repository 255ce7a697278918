// SPDX-License-Identifier: MIT
#include "support/FakeWatcher.h"
#include "support/PrivateBus.h"
#include "support/WaitUntil.h"

#include <platform_tray/StatusNotifierHosts.h>

#include <QElapsedTimer>
#include <gtest/gtest.h>

#include <memory>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Presence = StatusNotifierHosts::Presence;

const auto hostRegistered = u"StatusNotifierHostRegistered"_s;
const auto hostUnregistered = u"StatusNotifierHostUnregistered"_s;

/// More than any answer takes here; a test that waits for it is a test that fails.
constexpr auto longPatience = 10s;
/// Less than a watcher that hangs takes.
constexpr auto shortPatience = 50ms;

class StatusNotifierHostsTest : public testing::Test {
protected:
    PrivateBus bus;
    FakeWatcher watcher{bus.connection()};
    std::unique_ptr<StatusNotifierHosts> hosts;
    int changes = 0;

    void start(std::chrono::milliseconds patience = longPatience) {
        hosts = std::make_unique<StatusNotifierHosts>(bus.connection(), patience);
        QObject::connect(hosts.get(), &StatusNotifierHosts::changed, [this] { ++changes; });
    }

    [[nodiscard]] bool becomes(Presence presence) const {
        return waitUntil([&] { return hosts->presence() == presence; });
    }
};

TEST_F(StatusNotifierHostsTest, AHostThatIsThereIsKnownAtOnce) {
    watcher.appear();
    start();
    EXPECT_EQ(hosts->presence(), Presence::Present);
    EXPECT_EQ(watcher.questions(), 1);
}

TEST_F(StatusNotifierHostsTest, WithoutAWatcherThereIsNoneAndNothingIsWaitedFor) {
    QElapsedTimer timer;
    timer.start();
    start();
    EXPECT_EQ(hosts->presence(), Presence::Absent);
    EXPECT_LT(timer.elapsed(), longPatience.count() * 1000);
}

TEST_F(StatusNotifierHostsTest, AWatcherThatComesLateIsAsked) {
    start();
    watcher.appear();
    EXPECT_TRUE(becomes(Presence::Present));
}

TEST_F(StatusNotifierHostsTest, AWatcherWithoutHostsTellsOfTheFirst) {
    watcher.answer(false);
    watcher.appear();
    start();
    EXPECT_EQ(hosts->presence(), Presence::Absent);
    watcher.answer(true);
    watcher.announce(hostRegistered);
    EXPECT_TRUE(becomes(Presence::Present));
    EXPECT_EQ(changes, 1);
}

TEST_F(StatusNotifierHostsTest, TheLastHostThatGoesLeavesNone) {
    watcher.appear();
    start();
    watcher.answer(false);
    watcher.announce(hostUnregistered);
    EXPECT_TRUE(becomes(Presence::Absent));
    EXPECT_EQ(changes, 1);
}

TEST_F(StatusNotifierHostsTest, OneOfTwoHostsThatGoesChangesNothing) {
    watcher.appear();
    start();
    watcher.announce(hostUnregistered);
    EXPECT_TRUE(waitUntil([this] { return watcher.questions() == 2; }));
    watcher.answer(false);
    watcher.announce(hostUnregistered);
    EXPECT_TRUE(becomes(Presence::Absent));
    EXPECT_EQ(changes, 1);
}

TEST_F(StatusNotifierHostsTest, AWatcherThatStartsAnewIsAskedAnew) {
    watcher.appear();
    start();
    watcher.vanish();
    EXPECT_TRUE(becomes(Presence::Absent));
    watcher.appear();
    EXPECT_TRUE(becomes(Presence::Present));
}

TEST_F(StatusNotifierHostsTest, AWatcherThatHangsIsUnknownUntilItAnswers) {
    watcher.hang();
    watcher.appear();
    start(shortPatience);
    EXPECT_EQ(hosts->presence(), Presence::Unknown);
    EXPECT_TRUE(waitUntil([this] { return watcher.questions() == 2; }));
    watcher.answer(true);
    EXPECT_TRUE(becomes(Presence::Present));
}

TEST_F(StatusNotifierHostsTest, AWatcherThatHangsAndGoesLeavesNoHost) {
    watcher.hang();
    watcher.appear();
    start(shortPatience);
    watcher.vanish();
    EXPECT_TRUE(becomes(Presence::Absent));
}

TEST_F(StatusNotifierHostsTest, ALateAnswerOfAWatcherThatIsGoneDoesNotCount) {
    watcher.hang();
    watcher.appear();
    start(shortPatience);
    EXPECT_TRUE(waitUntil([this] { return watcher.questions() == 2; }));
    watcher.vanish();
    EXPECT_TRUE(becomes(Presence::Absent));
    watcher.answer(true);
    FakeWatcher successor(bus.connection());
    successor.answer(false);
    successor.appear();
    EXPECT_TRUE(waitUntil([&] { return successor.questions() == 1; }));
    EXPECT_TRUE(becomes(Presence::Absent));
    EXPECT_EQ(changes, 3); // absent, then a successor that has to be asked, absent
}

TEST_F(StatusNotifierHostsTest, AnAnswerWithoutMeaningIsNoHost) {
    for (const auto& answer : {QVariant(1), QVariant(u"true"_s)}) {
        watcher.answer(answer);
        watcher.appear();
        start();
        EXPECT_EQ(hosts->presence(), Presence::Absent) << answer.typeName();
        watcher.vanish();
    }
    watcher.answerWithError();
    watcher.appear();
    start();
    EXPECT_EQ(hosts->presence(), Presence::Absent);
}

TEST(StatusNotifierHosts, WithoutABusThereIsNever) {
    const StatusNotifierHosts hosts(QDBusConnection(u"no such connection"_s));
    EXPECT_EQ(hosts.presence(), Presence::Absent);
}

} // namespace
} // namespace quorvane
