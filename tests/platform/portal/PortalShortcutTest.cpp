// SPDX-License-Identifier: MIT
#include "../dbus/support/PrivateBus.h"
#include "support/FakeGlobalShortcuts.h"

#include <platform_portal/PortalDesktopShortcut.h>
#include <platform_portal/PortalEventTapService.h>
#include <testing/MemoryDefaults.h>
#include <testing/VirtualMainQueue.h>

#include <QTest>
#include <gmock/gmock.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

constexpr KeyChord controlShiftSuperD{2, modifier::control | modifier::shift | modifier::command};
constexpr KeyChord controlAltK{40, modifier::control | modifier::option};

class PortalShortcutTest : public testing::Test {
protected:
    /// A new run of the program, with the settings of the last one.
    void startProgram() {
        m_tap.reset();
        m_list.reset();
        m_shortcut.reset();
        m_portal = std::make_shared<PortalDesktop>(m_bus.connection());
        m_shortcut = std::make_shared<PortalShortcut>(m_portal, m_queue, m_defaults);
        m_list = std::make_unique<PortalDesktopShortcut>(m_shortcut);
    }

    [[nodiscard]] bool comesTo(const std::function<bool()>& condition) {
        return QTest::qWaitFor([&] {
            m_queue.run();
            return condition();
        });
    }

    [[nodiscard]] bool isOffered() {
        return comesTo([&] { return !m_list->desktopName().isEmpty(); });
    }

    [[nodiscard]] bool isBound() {
        return comesTo([&] { return m_shortcut->isBound(); });
    }

    /// Whether the bus has handed over all that was sent until now, and what was sent in reply.
    [[nodiscard]] bool settles() { return isPingAnswered() && isPingAnswered(); }

    [[nodiscard]] bool isPingAnswered() {
        bool isAnswered = false;
        QObject context;
        m_portal->ask(
            m_portal->question(u"org.freedesktop.DBus.Peer", u"Ping"),
            &context,
            [&](const QDBusMessage&) { isAnswered = true; });
        return comesTo([&] { return isAnswered; });
    }

    /// False where there is no tap to be had.
    [[nodiscard]] bool arm(const KeyChord& chord) {
        auto result = PortalEventTapService(m_shortcut)
                          .createTap(
                              {[this](const KeyPress& press) {
                                   m_events.push_back("press " + std::to_string(press.keyCode));
                                   return TapVerdict::Swallow;
                               },
                               [this] { m_events.push_back("release"); },
                               [this] { m_events.push_back("delivery"); },
                               [this](const KeyChord& other) {
                                   m_events.push_back("chord " + std::to_string(other.keyCode));
                               }});
        auto* tap = std::get_if<std::unique_ptr<EventTap>>(&result);
        if (tap == nullptr)
            return false;
        m_tap = std::move(*tap);
        m_tap->watch(chord);
        m_tap->enable();
        return true;
    }

    [[nodiscard]] bool hears(const std::vector<std::string>& events) {
        return comesTo([&] { return m_events.size() >= events.size(); }) && m_events == events;
    }

    PrivateBus m_bus;
    VirtualMainQueue m_queue;
    MemoryDefaults m_defaults;
    FakeGlobalShortcuts m_desktop{m_bus.connection()};
    std::vector<std::string> m_events;
    std::shared_ptr<PortalDesktop> m_portal;
    std::shared_ptr<PortalShortcut> m_shortcut;
    std::unique_ptr<DesktopShortcut> m_list;
    std::unique_ptr<EventTap> m_tap;
};

TEST_F(PortalShortcutTest, AsksNobodyAtAStart) {
    m_desktop.appear();
    startProgram();
    ASSERT_TRUE(isOffered());
    ASSERT_TRUE(settles());
    EXPECT_EQ(m_desktop.calls(), QStringList());
    EXPECT_FALSE(arm(controlShiftSuperD));
    EXPECT_EQ(m_list->bound(), std::nullopt);
}

TEST_F(PortalShortcutTest, IsNotListedWhereNobodyOffersIt) {
    m_desktop.isOffered = false;
    m_desktop.appear();
    startProgram();
    ASSERT_TRUE(comesTo([&] { return !m_portal->owner().isEmpty(); }) && settles());
    EXPECT_EQ(m_list->desktopName(), QString());
}

TEST_F(PortalShortcutTest, IsAddedWhenTheUserWantsItAndTellsPressesAndReleases) {
    m_desktop.appear();
    startProgram();
    m_list->bind(controlShiftSuperD);
    ASSERT_TRUE(isBound());
    EXPECT_EQ(m_desktop.wish(), u"CTRL+SHIFT+LOGO+d"_s);
    EXPECT_EQ(m_list->bound(), controlShiftSuperD);
    ASSERT_TRUE(arm(controlShiftSuperD));
    EXPECT_EQ(m_tap->delivery(), TapDelivery::Delivering);
    EXPECT_TRUE(m_tap->tellsRelease());
    m_desktop.press(m_desktop.sessionPath());
    ASSERT_TRUE(hears({"press 2"}));
    EXPECT_TRUE(m_tap->isKeyDown());
    m_desktop.release(m_desktop.sessionPath());
    ASSERT_TRUE(hears({"press 2", "release"}));
    EXPECT_FALSE(m_tap->isKeyDown());
}

TEST_F(PortalShortcutTest, IsBoundByAnAnswerThatHoldsItThoughItSaysNoSuccess) {
    m_desktop.agreement = 2;
    m_desktop.trigger = u"Press <Shift><Control><Super>d"_s;
    m_desktop.appear();
    startProgram();
    m_list->bind(controlShiftSuperD);
    ASSERT_TRUE(isBound());
    EXPECT_EQ(m_list->bound(), controlShiftSuperD);
}

TEST_F(PortalShortcutTest, KeepsTheActivationTokenForTheNextWindow) {
    qunsetenv("XDG_ACTIVATION_TOKEN");
    m_desktop.appear();
    startProgram();
    m_list->bind(controlShiftSuperD);
    ASSERT_TRUE(isBound() && arm(controlShiftSuperD));
    m_desktop.press(m_desktop.sessionPath(), {{u"activation_token"_s, u"token-7"_s}});
    ASSERT_TRUE(hears({"press 2"}));
    EXPECT_EQ(qgetenv("XDG_ACTIVATION_TOKEN"), "token-7");
    qunsetenv("XDG_ACTIVATION_TOKEN");
}

TEST_F(PortalShortcutTest, IsNotBoundWhereTheUserDoesNotAgree) {
    m_desktop.userAgrees = false;
    m_desktop.appear();
    startProgram();
    m_list->bind(controlShiftSuperD);
    ASSERT_TRUE(comesTo([&] { return m_desktop.callsOf(u"Session.Close"_s) == 1; }));
    EXPECT_FALSE(arm(controlShiftSuperD));
}

TEST_F(PortalShortcutTest, IsNotBoundWhereThePortalSaysSoAndListsNothing) {
    m_desktop.bindsNothing = true;
    m_desktop.appear();
    startProgram();
    m_list->bind(controlShiftSuperD);
    ASSERT_TRUE(comesTo([&] { return m_desktop.callsOf(u"Session.Close"_s) == 1; }));
    EXPECT_FALSE(arm(controlShiftSuperD));
    EXPECT_FALSE(m_defaults.boolForKey(u"portalShortcut"_s));
}

TEST_F(PortalShortcutTest, ComesBackInTheNextRun) {
    m_desktop.appear();
    startProgram();
    m_list->bind(controlShiftSuperD);
    ASSERT_TRUE(isBound());
    startProgram();
    ASSERT_TRUE(isBound());
    EXPECT_EQ(m_desktop.callsOf(u"ListShortcuts"_s), 1);
    EXPECT_EQ(m_desktop.callsOf(u"BindShortcuts"_s), 2);
    EXPECT_TRUE(arm(controlShiftSuperD));
}

TEST_F(PortalShortcutTest, DoesNotComeBackWhereTheDesktopHasForgottenIt) {
    m_desktop.appear();
    startProgram();
    m_list->bind(controlShiftSuperD);
    ASSERT_TRUE(isBound());
    m_desktop.knowsShortcut = false;
    startProgram();
    ASSERT_TRUE(comesTo([&] { return m_desktop.callsOf(u"ListShortcuts"_s) == 1; }));
    ASSERT_TRUE(settles());
    EXPECT_EQ(m_desktop.callsOf(u"BindShortcuts"_s), 1);
}

TEST_F(PortalShortcutTest, DoesNotComeBackAfterTheUserHasRemovedIt) {
    m_desktop.appear();
    startProgram();
    m_list->bind(controlShiftSuperD);
    ASSERT_TRUE(isBound());
    m_list->unbind();
    EXPECT_EQ(m_list->bound(), std::nullopt);
    startProgram();
    ASSERT_TRUE(isOffered() && settles());
    EXPECT_EQ(m_desktop.callsOf(u"ListShortcuts"_s), 0);
}

TEST_F(PortalShortcutTest, AnotherChordThatIsRecordedIsBoundInASessionOfItsOwn) {
    m_desktop.appear();
    startProgram();
    m_list->bind(controlShiftSuperD);
    ASSERT_TRUE(isBound() && arm(controlShiftSuperD));
    m_desktop.trigger = u"Ctrl+Alt+K"_s;
    m_tap->watch(controlAltK);
    ASSERT_TRUE(comesTo([&] { return m_desktop.callsOf(u"BindShortcuts"_s) == 2; }));
    EXPECT_EQ(m_desktop.wish(), u"CTRL+ALT+k"_s);
    ASSERT_TRUE(comesTo([&] { return m_list->bound() == controlAltK; }));
    EXPECT_EQ(m_desktop.callsOf(u"CreateSession"_s), 2);
}

TEST_F(PortalShortcutTest, OtherKeysThatTheUserGivesItAreTold) {
    m_desktop.appear();
    startProgram();
    m_list->bind(controlShiftSuperD);
    ASSERT_TRUE(isBound() && arm(controlShiftSuperD));
    m_desktop.change(u"<Control><Alt>k"_s);
    ASSERT_TRUE(hears({"chord 40"}));
    EXPECT_EQ(m_list->bound(), controlAltK);
    m_tap->watch(controlAltK);
    ASSERT_TRUE(settles());
    EXPECT_EQ(m_desktop.callsOf(u"BindShortcuts"_s), 1);
}

TEST_F(PortalShortcutTest, KeysThatCannotBeUnderstoodAreThoseThatWereWishedFor) {
    m_desktop.trigger = u"press the middle of the bar"_s;
    m_desktop.appear();
    startProgram();
    m_list->bind(controlShiftSuperD);
    ASSERT_TRUE(isBound() && arm(controlShiftSuperD));
    EXPECT_EQ(m_list->bound(), controlShiftSuperD);
    m_desktop.press(m_desktop.sessionPath());
    EXPECT_TRUE(hears({"press 2"}));
}

TEST_F(PortalShortcutTest, EndsWhenTheUserTakesItAwayInTheDesktopsSettings) {
    m_desktop.appear();
    startProgram();
    m_list->bind(controlShiftSuperD);
    ASSERT_TRUE(isBound() && arm(controlShiftSuperD));
    m_desktop.change(std::nullopt);
    ASSERT_TRUE(hears({"delivery"}));
    EXPECT_EQ(m_tap->delivery(), TapDelivery::Off);
}

TEST_F(PortalShortcutTest, ComesBackWithThePortal) {
    m_desktop.appear();
    startProgram();
    m_list->bind(controlShiftSuperD);
    ASSERT_TRUE(isBound() && arm(controlShiftSuperD));
    m_desktop.vanish();
    ASSERT_TRUE(hears({"delivery"}));
    EXPECT_FALSE(m_shortcut->isBound());
    m_desktop.appear();
    ASSERT_TRUE(isBound());
    EXPECT_EQ(m_tap->delivery(), TapDelivery::Delivering);
}

TEST_F(PortalShortcutTest, HearsPressesOfItsOwnSessionAlone) {
    m_desktop.appear();
    startProgram();
    m_list->bind(controlShiftSuperD);
    ASSERT_TRUE(isBound() && arm(controlShiftSuperD));
    m_desktop.press(u"/org/freedesktop/portal/desktop/session/1_1/other"_s);
    ASSERT_TRUE(settles());
    EXPECT_TRUE(m_events.empty());
}

} // namespace
} // namespace quorvane
