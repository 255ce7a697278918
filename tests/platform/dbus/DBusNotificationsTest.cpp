// SPDX-License-Identifier: MIT
#include "support/FakeNotificationServer.h"
#include "support/PrivateBus.h"

#include <platform_dbus/DBusNotifications.h>
#include <testing/VirtualMainQueue.h>

#include <QDBusArgument>
#include <QTest>
#include <gtest/gtest.h>

#include <functional>
#include <vector>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using Outcome = NotificationOutcome;

class DBusNotificationsTest : public testing::Test {
protected:
    void show(const QString& title, const QString& body = {}) {
        show(Notification{title, body, std::nullopt});
    }

    void show(const Notification& notification) {
        notifications.show(notification, [this](Outcome outcome) { outcomes.push_back(outcome); });
    }

    /// Whether all have been told so far, and this last.
    [[nodiscard]] bool isTold(std::vector<Outcome> expected) {
        return comesTo([&] { return outcomes.size() >= expected.size(); }) && outcomes == expected;
    }

    static bool comesTo(const std::function<bool()>& condition) {
        return QTest::qWaitFor(condition);
    }

    [[nodiscard]] QVariant argument(qsizetype notification, qsizetype index) const {
        return server.notifications().value(notification).value(index);
    }

    [[nodiscard]] uint replacedBy(qsizetype notification) const {
        return argument(notification, 1).toUInt();
    }

    PrivateBus bus;
    VirtualMainQueue queue;
    FakeNotificationServer server{bus.connection()};
    std::vector<Outcome> outcomes;
    DBusNotifications notifications{bus.connection(), queue};
};

TEST_F(DBusNotificationsTest, TellTheServerWhoWeAreAndWhatToShow) {
    server.appear();
    show(u"Copied instead"_s, u"a < b"_s);
    ASSERT_TRUE(isTold({Outcome::Shown}));
    const auto& shown = server.notifications().first();
    const QVariantList expected{
        u"Quorvane"_s, 0U, u"org.quorvane.Quorvane"_s, u"Copied instead"_s, u"a < b"_s};
    EXPECT_EQ(shown.first(5), expected);
    EXPECT_EQ(shown[5].toStringList(), QStringList());
    const auto hints = qdbus_cast<QVariantMap>(shown[6]);
    EXPECT_EQ(hints[u"desktop-entry"_s], u"org.quorvane.Quorvane"_s);
    EXPECT_EQ(hints[u"urgency"_s], QVariant::fromValue(uchar{1}));
    EXPECT_EQ(shown[7], -1);
}

TEST_F(DBusNotificationsTest, EscapeTheBodyForAServerThatTakesMarkup) {
    server.capabilities = {u"body"_s, u"body-markup"_s};
    server.appear();
    show(u"<i>"_s, u"a < b & c"_s);
    ASSERT_TRUE(isTold({Outcome::Shown}));
    EXPECT_EQ(argument(0, 3), u"<i>"_s);
    EXPECT_EQ(argument(0, 4), u"a &lt; b &amp; c"_s);
}

TEST_F(DBusNotificationsTest, ReplaceTheOneOnTheScreen) {
    server.appear();
    show(u"first"_s);
    ASSERT_TRUE(isTold({Outcome::Shown}));
    show(u"second"_s);
    ASSERT_TRUE(isTold({Outcome::Shown, Outcome::Shown}));
    EXPECT_EQ(replacedBy(1), 11U);
}

TEST_F(DBusNotificationsTest, ReplaceNothingOnceTheUserHasClosedIt) {
    server.appear();
    show(u"first"_s);
    ASSERT_TRUE(isTold({Outcome::Shown}));
    server.close(11);
    show(u"second"_s);
    ASSERT_TRUE(isTold({Outcome::Shown, Outcome::Shown}));
    EXPECT_EQ(replacedBy(1), 0U);
}

TEST_F(DBusNotificationsTest, WaitForTheNumberOfTheOneBefore) {
    server.hang();
    server.appear();
    show(u"first"_s);
    show(u"overtaken"_s);
    show(u"last"_s);
    ASSERT_TRUE(comesTo([this] { return server.calls() == 1; }));
    server.answerAll();
    ASSERT_TRUE(isTold({Outcome::Shown, Outcome::Shown}));
    ASSERT_EQ(server.notifications().size(), 2);
    EXPECT_EQ(argument(1, 3), u"last"_s);
    EXPECT_EQ(replacedBy(1), 11U);
}

TEST_F(DBusNotificationsTest, AreNotShownWithoutAServer) {
    show(u"first"_s);
    EXPECT_TRUE(isTold({Outcome::NoServer}));
}

TEST_F(DBusNotificationsTest, AreShownByAServerThatComesLater) {
    show(u"first"_s);
    ASSERT_TRUE(isTold({Outcome::NoServer}));
    server.appear();
    show(u"second"_s);
    EXPECT_TRUE(isTold({Outcome::NoServer, Outcome::Shown}));
    EXPECT_EQ(server.notifications().size(), 1);
}

TEST_F(DBusNotificationsTest, AreGivenUpAfterTwoSecondsWhereTheServerHangs) {
    server.hang();
    server.appear();
    show(u"first"_s);
    ASSERT_TRUE(comesTo([this] { return server.calls() == 1; }));
    queue.advance(Seconds(1.99));
    EXPECT_TRUE(outcomes.empty());
    queue.advance(Seconds(0.01));
    EXPECT_EQ(outcomes, std::vector{Outcome::NoServer});
}

TEST_F(DBusNotificationsTest, ThatWereGivenUpAreNotShownLate) {
    server.hang();
    server.appear();
    show(u"first"_s);
    ASSERT_TRUE(comesTo([this] { return server.calls() == 1; }));
    queue.advance(DBusNotifications::patience);
    show(u"second"_s);
    server.answerAll();
    ASSERT_TRUE(isTold({Outcome::NoServer, Outcome::Shown}));
    ASSERT_EQ(server.notifications().size(), 1);
    EXPECT_EQ(argument(0, 3), u"second"_s);
}

TEST_F(DBusNotificationsTest, DoNothingWithoutABus) {
    DBusNotifications unconnected(QDBusConnection(u"none"_s), queue);
    unconnected.show({}, [this](Outcome outcome) { outcomes.push_back(outcome); });
    EXPECT_TRUE(outcomes.empty());
    queue.run();
    EXPECT_EQ(outcomes, std::vector{Outcome::NoServer});
}

class DBusNotificationsActionTest : public DBusNotificationsTest {
protected:
    int m_performed = 0;
    Notification m_notification{u"title"_s, u"body"_s, Notification::Action{u"Allow"_s, [this] {
                                                                                ++m_performed;
                                                                            }}};
};

TEST_F(DBusNotificationsActionTest, IsOfferedByAServerThatHasButtons) {
    server.capabilities = {u"actions"_s};
    server.appear();
    show(m_notification);
    ASSERT_TRUE(isTold({Outcome::Shown}));
    const auto actions = argument(0, 5).toStringList();
    ASSERT_EQ(actions.size(), 2);
    EXPECT_EQ(actions[1], u"Allow"_s);
    server.invokeAction(99, actions[0]);
    server.invokeAction(11, u"default"_s);
    server.invokeAction(11, actions[0]);
    EXPECT_TRUE(comesTo([this] { return m_performed > 0; }));
    EXPECT_EQ(m_performed, 1);
}

// Qt ends the process where a structure stands for what a slot takes. Any program can send these.
TEST_F(DBusNotificationsActionTest, SignalsOfOtherArgumentsDoNothing) {
    server.capabilities = {u"actions"_s};
    server.appear();
    show(m_notification);
    ASSERT_TRUE(isTold({Outcome::Shown}));
    const QVariantMap map{{u"a"_s, 1}};
    for (const auto& signal : {u"ActionInvoked"_s, u"NotificationClosed"_s}) {
        server.send(signal, {map, map});
        server.send(signal, {11U, map});
        server.send(signal, {map});
        server.send(signal, {});
    }
    server.invokeAction(11, argument(0, 5).toStringList().value(0));
    EXPECT_TRUE(comesTo([this] { return m_performed > 0; }));
}

TEST_F(DBusNotificationsActionTest, IsLeftOutWhereTheServerHasNoButtons) {
    server.appear();
    show(m_notification);
    ASSERT_TRUE(isTold({Outcome::Shown}));
    EXPECT_EQ(argument(0, 5).toStringList(), QStringList());
}

} // namespace
} // namespace quorvane
