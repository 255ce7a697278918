// SPDX-License-Identifier: MIT
#include "support/FakeScreenSaver.h"
#include "support/PrivateBus.h"

#include <platform_dbus/DBusScreenSaver.h>

#include <QPointer>
#include <QTest>
#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

class DBusScreenSaverTest : public testing::Test {
protected:
    [[nodiscard]] bool becomes(bool isActive) {
        return QTest::qWaitFor([&] { return m_saver.isActive() == isActive; });
    }

    [[nodiscard]] bool isAsked(int times) {
        return QTest::qWaitFor([&] { return m_service.questions() == times; });
    }

    PrivateBus m_bus;
    QDBusConnection m_connection{m_bus.connection()};
    FakeScreenSaver m_service{m_bus.connection()};
    DBusScreenSaver m_saver{m_connection, u"org.freedesktop.ScreenSaver"_s};
};

TEST_F(DBusScreenSaverTest, IsNotActiveWithoutAService) {
    EXPECT_FALSE(m_saver.isActive());
}

TEST_F(DBusScreenSaverTest, FollowsTheService) {
    m_service.appear();
    ASSERT_TRUE(isAsked(1));
    m_service.tell(true);
    EXPECT_TRUE(becomes(true));
    m_service.tell(false);
    EXPECT_TRUE(becomes(false));
}

TEST_F(DBusScreenSaverTest, AsksAServiceThatComesLockedAlready) {
    m_service.answer = true;
    m_service.appear();
    EXPECT_TRUE(becomes(true));
}

TEST_F(DBusScreenSaverTest, AServiceThatHasGoneLocksNothing) {
    m_service.answer = true;
    m_service.appear();
    ASSERT_TRUE(becomes(true));
    m_service.vanish();
    EXPECT_TRUE(becomes(false));
}

TEST_F(DBusScreenSaverTest, ABusThatHasGoneLocksNothing) {
    m_service.answer = true;
    m_service.appear();
    ASSERT_TRUE(becomes(true));
    m_bus.end();
    EXPECT_TRUE(becomes(false));
}

TEST_F(DBusScreenSaverTest, WordsOfAnotherKindChangeNothing) {
    m_service.answer = u"yes"_s;
    m_service.appear();
    ASSERT_TRUE(isAsked(1));
    m_service.tell(u"yes"_s);
    m_service.tell(true);
    EXPECT_TRUE(becomes(true));
    m_service.tell(u"no"_s);
    m_service.tell(1);
    m_service.vanish();
    EXPECT_TRUE(becomes(false));
}

TEST_F(DBusScreenSaverTest, OthersThanTheServiceAreNotBelieved) {
    m_service.appear();
    ASSERT_TRUE(isAsked(1));
    const QPointer<QObject> hears = new QObject;
    ASSERT_TRUE(m_connection.connect(
        QString(),
        u"/org/freedesktop/ScreenSaver"_s,
        u"org.freedesktop.ScreenSaver"_s,
        u"ActiveChanged"_s,
        hears,
        SLOT(deleteLater())));
    const FakeScreenSaver stranger(m_bus.connection());
    stranger.tell(true);
    ASSERT_TRUE(QTest::qWaitFor([&] { return hears.isNull(); }));
    EXPECT_FALSE(m_saver.isActive());
}

} // namespace
} // namespace quorvane
