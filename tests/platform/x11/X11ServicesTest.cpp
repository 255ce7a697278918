// SPDX-License-Identifier: MIT
#include "support/PrivateDisplay.h"
#include "support/X11Test.h"

#include <platform_null/NullServices.h>
#include <platform_x11/X11Services.h>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

class ServicesOnX11 : public X11Test {
protected:
    PlatformServices m_services = makeNullServices(m_queue);
};

TEST_F(ServicesOnX11, ReplaceThoseThatDoNothing) {
    const auto* right = m_services.accessibilityRight.get();
    const auto* taps = m_services.eventTaps.get();
    const auto* poster = m_services.keyPoster.get();
    const auto* pasteboard = m_services.pasteboard.get();
    const auto* workspace = m_services.workspace.get();
    const auto* layout = m_services.keyboardLayout.get();
    const auto* traits = m_services.windowTraits.get();
    ASSERT_TRUE(addX11Services(m_services, m_queue, X11Reach::Session));
    EXPECT_NE(m_services.accessibilityRight.get(), right);
    EXPECT_NE(m_services.eventTaps.get(), taps);
    EXPECT_NE(m_services.keyPoster.get(), poster);
    EXPECT_NE(m_services.pasteboard.get(), pasteboard);
    EXPECT_NE(m_services.workspace.get(), workspace);
    EXPECT_NE(m_services.keyboardLayout.get(), layout);
    EXPECT_NE(m_services.windowTraits.get(), traits);
}

TEST_F(ServicesOnX11, LeaveToOthersWhatTheServerDoesNotHave) {
    const auto* softwareCentre = m_services.softwareCentre.get();
    const auto* statusBar = m_services.statusBar.get();
    ASSERT_TRUE(addX11Services(m_services, m_queue, X11Reach::Session));
    EXPECT_EQ(m_services.softwareCentre.get(), softwareCentre);
    EXPECT_EQ(m_services.statusBar.get(), statusBar);
}

TEST_F(ServicesOnX11, LeaveKeysAndWindowsAloneWhereTheServerKnowsOnlyItsOwn) {
    const auto* right = m_services.accessibilityRight.get();
    const auto* taps = m_services.eventTaps.get();
    const auto* poster = m_services.keyPoster.get();
    const auto* pasteboard = m_services.pasteboard.get();
    const auto* workspace = m_services.workspace.get();
    ASSERT_TRUE(addX11Services(m_services, m_queue, X11Reach::OwnWindows));
    EXPECT_EQ(m_services.accessibilityRight.get(), right);
    EXPECT_EQ(m_services.eventTaps.get(), taps);
    EXPECT_EQ(m_services.keyPoster.get(), poster);
    EXPECT_NE(m_services.pasteboard.get(), pasteboard);
    EXPECT_EQ(m_services.workspace.get(), workspace);
}

TEST_F(ServicesOnX11, GrantTheRightWithoutAskingWhereKeysCanBeTyped) {
    ASSERT_TRUE(addX11Services(m_services, m_queue, X11Reach::Session));
    m_services.accessibilityRight->prompt();
    EXPECT_TRUE(m_services.accessibilityRight->isTrusted());
}

TEST_F(ServicesOnX11, RefuseTheRightWithoutTheTestExtension) {
    const PrivateDisplay display({u"-extension"_s, u"XTEST"_s});
    const ScopedDisplayVariable variable(display.name());
    ASSERT_TRUE(addX11Services(m_services, m_queue, X11Reach::Session));
    EXPECT_FALSE(m_services.accessibilityRight->isTrusted());
}

TEST_F(ServicesOnX11, LoseTheRightWithTheServer) {
    PrivateDisplay display;
    const ScopedDisplayVariable variable(display.name());
    ASSERT_TRUE(addX11Services(m_services, m_queue, X11Reach::Session));
    display.stop();
    EXPECT_TRUE(waitUntil([&] { return !m_services.accessibilityRight->isTrusted(); }));
}

TEST_F(ServicesOnX11, AreNoneWithoutAServer) {
    const ScopedDisplayVariable variable(":nowhere");
    const auto* pasteboard = m_services.pasteboard.get();
    EXPECT_FALSE(addX11Services(m_services, m_queue, X11Reach::Session));
    EXPECT_EQ(m_services.pasteboard.get(), pasteboard);
}

} // namespace

} // namespace quorvane
