// SPDX-License-Identifier: MIT
#include "support/PrivateDisplay.h"
#include "support/X11Test.h"

#include <platform_x11/X11Services.h>

namespace quorvane {

using namespace Qt::StringLiterals;

namespace {

class ServicesOnX11 : public X11Test {};

TEST_F(ServicesOnX11, AreAllThere) {
    const auto services = makeX11Services(m_queue);
    ASSERT_TRUE(services);
    EXPECT_TRUE(services->accessibilityRight);
    EXPECT_TRUE(services->eventTaps);
    EXPECT_TRUE(services->keyPoster);
    EXPECT_TRUE(services->pasteboard);
    EXPECT_TRUE(services->workspace);
    EXPECT_TRUE(services->keyboardLayout);
    EXPECT_TRUE(services->windowTraits);
}

TEST_F(ServicesOnX11, GrantTheRightWithoutAskingWhereKeysCanBeTyped) {
    const auto services = makeX11Services(m_queue);
    services->accessibilityRight->prompt();
    EXPECT_TRUE(services->accessibilityRight->isTrusted());
}

TEST_F(ServicesOnX11, RefuseTheRightWithoutTheTestExtension) {
    const PrivateDisplay display({u"-extension"_s, u"XTEST"_s});
    const ScopedDisplayVariable variable(display.name());
    const auto services = makeX11Services(m_queue);
    ASSERT_TRUE(services);
    EXPECT_FALSE(services->accessibilityRight->isTrusted());
}

TEST_F(ServicesOnX11, LoseTheRightWithTheServer) {
    PrivateDisplay display;
    const ScopedDisplayVariable variable(display.name());
    const auto services = makeX11Services(m_queue);
    ASSERT_TRUE(services);
    display.stop();
    EXPECT_TRUE(waitUntil([&] { return !services->accessibilityRight->isTrusted(); }));
}

TEST_F(ServicesOnX11, AreNoneWithoutAServer) {
    const ScopedDisplayVariable variable(":nowhere");
    EXPECT_FALSE(makeX11Services(m_queue));
}

} // namespace

} // namespace quorvane
