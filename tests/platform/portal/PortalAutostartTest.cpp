// SPDX-License-Identifier: MIT
#include "../dbus/support/PrivateBus.h"
#include "support/FakeBackground.h"

#include <platform_portal/PortalAutostart.h>
#include <settings/SettingsTable.h>
#include <testing/MemoryDefaults.h>
#include <testing/VirtualMainQueue.h>

#include <QTest>
#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;
using Request = Autostart::Request;

constexpr uint success = 0;
constexpr uint refused = 1;

class PortalAutostartTest : public testing::Test {
protected:
    PortalAutostartTest() {
        m_portal.appear();
        startProgram();
    }

    /// A new run of the program, with the settings of the last one.
    void startProgram() {
        m_autostart.reset();
        m_desktop = std::make_shared<PortalDesktop>(m_bus.connection());
        m_autostart = std::make_unique<PortalAutostart>(m_desktop, m_queue, m_defaults);
        m_autostart->onChanged([this] { m_changes += 1; });
    }

    [[nodiscard]] bool comesTo(const std::function<bool()>& condition) {
        return QTest::qWaitFor([&] {
            m_queue.run();
            return condition();
        });
    }

    [[nodiscard]] bool comesTo(Request request) {
        return comesTo([&] { return m_autostart->request() == request; });
    }

    /// Whether the question has reached the desktop.
    [[nodiscard]] bool asks(bool on) {
        m_autostart->setOn(on);
        EXPECT_EQ(m_autostart->request(), Request::Asked);
        return comesTo([&] {
            const auto& question = m_portal.question();
            return question && question->value(u"autostart"_s) == on;
        });
    }

    PrivateBus m_bus;
    VirtualMainQueue m_queue;
    MemoryDefaults m_defaults;
    FakeBackground m_portal{m_bus.connection()};
    std::shared_ptr<PortalDesktop> m_desktop;
    std::unique_ptr<PortalAutostart> m_autostart;
    int m_changes = 0;
};

TEST_F(PortalAutostartTest, WhatIsGrantedIsOnInLaterRunsWithoutAQuestion) {
    EXPECT_TRUE(m_autostart->isAvailable());
    EXPECT_FALSE(m_autostart->isOn());
    ASSERT_TRUE(asks(true));
    EXPECT_EQ(
        m_portal.question()->value(u"commandline"_s).toStringList(),
        (QStringList{u"quorvane"_s, u"--hidden"_s}));
    EXPECT_FALSE(m_autostart->isOn()) << "not before it is granted";
    m_changes = 0;
    m_portal.answer(success, {{u"background"_s, true}, {u"autostart"_s, true}});
    ASSERT_TRUE(comesTo(Request::Settled));
    EXPECT_TRUE(m_autostart->isOn());
    EXPECT_EQ(m_changes, 1);
    startProgram();
    EXPECT_TRUE(m_autostart->isOn());
    ASSERT_TRUE(asks(false));
    m_portal.answer(success, {{u"background"_s, true}, {u"autostart"_s, false}});
    ASSERT_TRUE(comesTo(Request::Settled));
    EXPECT_FALSE(m_autostart->isOn());
}

TEST_F(PortalAutostartTest, WhatTheUserRefusesIsOff) {
    ASSERT_TRUE(asks(true));
    m_portal.answer(refused);
    ASSERT_TRUE(comesTo(Request::Refused));
    EXPECT_FALSE(m_autostart->isOn());
    ASSERT_TRUE(asks(true)) << "asked again when the user wants it again";
    m_portal.answer(success, {{u"background"_s, true}, {u"autostart"_s, false}});
    ASSERT_TRUE(comesTo(Request::Refused)) << "success in all but what was asked for";
    EXPECT_FALSE(m_autostart->isOn());
}

TEST_F(PortalAutostartTest, AnswerMayTakeAsLongAsTheUserDoes) {
    ASSERT_TRUE(asks(true));
    m_queue.advance(std::chrono::hours(1));
    EXPECT_EQ(m_autostart->request(), Request::Asked);
    EXPECT_FALSE(m_autostart->isOn());
    m_autostart.reset();
    EXPECT_TRUE(comesTo([&] { return m_portal.isTakenBack(); })) << "with the program";
}

TEST_F(PortalAutostartTest, ChangeOfMindTakesTheQuestionBack) {
    ASSERT_TRUE(asks(true));
    ASSERT_TRUE(asks(false));
    EXPECT_TRUE(m_portal.isTakenBack());
}

TEST_F(PortalAutostartTest, WithoutAPortalItIsRefused) {
    m_portal.isOffered = false;
    m_autostart->setOn(true);
    ASSERT_TRUE(comesTo(Request::Refused));
    m_portal.isOffered = true;
    ASSERT_TRUE(asks(true));
    m_portal.vanish();
    ASSERT_TRUE(comesTo(Request::Refused)) << "it went while the user was asked";
    PortalAutostart nowhere(nullptr, m_queue, m_defaults);
    nowhere.setOn(true);
    EXPECT_EQ(nowhere.request(), Request::Refused);
    EXPECT_FALSE(nowhere.isOn());
}

} // namespace
} // namespace quorvane
