// SPDX-License-Identifier: MIT
#include "support/PrivateBus.h"

#include <platform_dbus/SessionBusFollower.h>

#include <QEventLoop>
#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

class SessionBusFollowerTest : public testing::Test {
protected:
    /// Runs the event loop until the follower has connected anew; it never ends if it does not.
    void awaitConnection() { m_loop.exec(); }

    [[nodiscard]] SessionBusFollower::Connected note() {
        return [this](const QDBusConnection& bus) {
            m_connections.append(bus.baseService());
            m_loop.quit();
        };
    }

    PrivateBus m_bus;
    QStringList m_connections;

private:
    QEventLoop m_loop;
};

TEST_F(SessionBusFollowerTest, ConnectsToEachBusThatTakesThePlace) {
    const SessionBusFollower follower(m_bus.connection(), m_bus.socket(), note());
    for (int times = 1; times <= 3; ++times) {
        m_bus.restart();
        awaitConnection();
        EXPECT_EQ(m_connections.size(), times);
    }
}

TEST_F(SessionBusFollowerTest, ConnectsToABusThatComesLate) {
    m_bus.end();
    const auto none = QDBusConnection(u"no connection"_s);
    const SessionBusFollower follower(none, m_bus.socket(), note());
    m_bus.begin();
    awaitConnection();
}

TEST_F(SessionBusFollowerTest, ConnectsToABusThatAnswersLate) {
    m_bus.stop();
    const auto none = QDBusConnection(u"no connection"_s);
    const SessionBusFollower follower(none, m_bus.socket(), note());
    m_bus.goOn();
    awaitConnection();
}

} // namespace
} // namespace quorvane
