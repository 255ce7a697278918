// SPDX-License-Identifier: MIT
#include "support/PrivateBus.h"

#include <platform_dbus/SessionBusFollower.h>

#include <QTest>
#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

class SessionBusFollowerTest : public testing::Test {
protected:
    /// Whether the follower connects so often within ten seconds.
    [[nodiscard]] bool connects(int times) {
        return QTest::qWaitFor([&] { return m_connections.size() >= times; }, 10'000);
    }

    [[nodiscard]] SessionBusFollower::Connected note() {
        return [this](const QDBusConnection& bus) {
            m_connections.append(bus.baseService());
        };
    }

    PrivateBus m_bus;
    QStringList m_connections;
};

TEST_F(SessionBusFollowerTest, ConnectsToEachBusThatTakesThePlace) {
    const SessionBusFollower follower(m_bus.connection(), m_bus.socket(), note());
    for (int times = 1; times <= 3; ++times) {
        m_bus.restart();
        ASSERT_TRUE(connects(times));
        EXPECT_EQ(m_connections.size(), times);
    }
}

TEST_F(SessionBusFollowerTest, ConnectsToABusThatComesLate) {
    m_bus.end();
    const auto none = QDBusConnection(u"no connection"_s);
    const SessionBusFollower follower(none, m_bus.socket(), note());
    m_bus.begin();
    EXPECT_TRUE(connects(1));
}

TEST_F(SessionBusFollowerTest, ConnectsToABusThatAnswersLate) {
    m_bus.stop();
    const auto none = QDBusConnection(u"no connection"_s);
    const SessionBusFollower follower(none, m_bus.socket(), note());
    m_bus.goOn();
    EXPECT_TRUE(connects(1));
}

} // namespace
} // namespace quorvane
