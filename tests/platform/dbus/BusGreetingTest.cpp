// SPDX-License-Identifier: MIT
#include "support/PrivateBus.h"
#include "support/SilentBus.h"

#include <platform_dbus/BusGreeting.h>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace quorvane {
namespace {

using namespace std::chrono_literals;
using State = BusGreeting::State;

constexpr auto unboundedly = 60s; // the test would have failed long before

TEST(BusGreetingTest, BusAnswers) {
    const PrivateBus bus;
    EXPECT_EQ(BusGreeting(bus.socket()).await(unboundedly), State::Answered);
}

TEST(BusGreetingTest, BusThatIsStoppedKeepsWaitingAndAnswersWhenItGoesOn) {
    PrivateBus bus;
    bus.stop();
    BusGreeting greeting(bus.socket());
    EXPECT_EQ(greeting.await(50ms), State::Waiting);
    bus.goOn();
    EXPECT_EQ(greeting.await(unboundedly), State::Answered);
}

TEST(BusGreetingTest, SocketThatSaysNothingKeepsWaiting) {
    const SilentBus bus;
    BusGreeting greeting(bus.socket());
    EXPECT_EQ(greeting.await(50ms), State::Waiting);
    bus.hangUp();
    EXPECT_EQ(greeting.await(unboundedly), State::Refused);
}

TEST(BusGreetingTest, SocketThatTakesNoMoreConnectionsKeepsWaiting) {
    const SilentBus bus(0);
    std::vector<std::unique_ptr<BusGreeting>> greetings;
    do
        greetings.push_back(std::make_unique<BusGreeting>(bus.socket()));
    while (greetings.back()->descriptor() >= 0 && greetings.size() < 100);
    EXPECT_LT(greetings.size(), 100U);
    EXPECT_EQ(greetings.back()->await(10ms), State::Waiting);
}

TEST(BusGreetingTest, NoSocketIsARefusal) {
    EXPECT_EQ(BusGreeting({"/nowhere/bus", false}).await(unboundedly), State::Refused);
    EXPECT_EQ(BusGreeting({"quorvane-nobody", true}).await(unboundedly), State::Refused);
    EXPECT_EQ(BusGreeting({QByteArray(200, 'x'), false}).await(unboundedly), State::Refused);
}

} // namespace
} // namespace quorvane
