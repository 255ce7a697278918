// SPDX-License-Identifier: MIT
#include "PortalBackendName.h"

#include "../dbus/support/PrivateBus.h"
#include "support/FakeBackend.h"

#include <QTest>
#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using Kind = FakeBackend::Kind;

class PortalBackendNameTest : public testing::Test {
protected:
    [[nodiscard]] bool finds(const QString& name) {
        bool isFound = false;
        m_name.look([&] { isFound = true; });
        return QTest::qWaitFor([&] { return isFound; }) && m_name.name() == name;
    }

    PrivateBus m_bus;
    PortalBackendName m_name{m_bus.connection(), u"org.freedesktop.impl.portal.GlobalShortcuts"_s};
};

TEST_F(PortalBackendNameTest, IsThatOfTheDesktopWhoseServiceHasTheShortcuts) {
    const FakeBackend gnome(m_bus.connection(), u"gnome"_s);
    EXPECT_TRUE(finds(u"GNOME"_s));
}

TEST_F(PortalBackendNameTest, IsNotThatOfOneWithoutThem) {
    const FakeBackend gnome(m_bus.connection(), u"gnome"_s, Kind::HasOther);
    const FakeBackend kde(m_bus.connection(), u"kde"_s);
    EXPECT_TRUE(finds(u"KDE"_s));
}

TEST_F(PortalBackendNameTest, IsNotKnownWithoutADesktopOrWithTwo) {
    EXPECT_TRUE(finds({}));
    const FakeBackend gnome(m_bus.connection(), u"gnome"_s);
    EXPECT_TRUE(finds(u"GNOME"_s));
    const FakeBackend kde(m_bus.connection(), u"kde"_s);
    EXPECT_TRUE(finds({}));
}

TEST_F(PortalBackendNameTest, IsNotKnownForOneThatNobodyCallsByName) {
    const FakeBackend other(m_bus.connection(), u"other"_s);
    EXPECT_TRUE(finds({}));
    EXPECT_FALSE(other.isAsked());
}

TEST_F(PortalBackendNameTest, AServiceThatHangsHoldsUpNothingElse) {
    const FakeBackend silent(m_bus.connection(), u"gnome"_s, Kind::Hangs);
    bool isFound = false;
    m_name.look([&] { isFound = true; });
    ASSERT_TRUE(QTest::qWaitFor([&] { return silent.isAsked(); }));
    EXPECT_FALSE(isFound);
    EXPECT_EQ(m_name.name(), QString());
}

} // namespace
} // namespace quorvane
