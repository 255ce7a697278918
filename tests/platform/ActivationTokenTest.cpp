// SPDX-License-Identifier: MIT
#include <platform/ActivationToken.h>

#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

TEST(ActivationToken, OfTheProcessIsTakenOnceAndLeftToNoChild) {
    qputenv("XDG_ACTIVATION_TOKEN", "wayland");
    qputenv("DESKTOP_STARTUP_ID", "x11");
    EXPECT_EQ(takeActivationTokenOfProcess(), (ActivationToken{u"wayland"_s, u"x11"_s}));
    EXPECT_FALSE(qEnvironmentVariableIsSet("XDG_ACTIVATION_TOKEN"));
    EXPECT_FALSE(qEnvironmentVariableIsSet("DESKTOP_STARTUP_ID"));
    EXPECT_TRUE(takeActivationTokenOfProcess().isEmpty());
}

TEST(ActivationToken, TextsThatNoDesktopGivesCountAsNone) {
    EXPECT_TRUE(activationTokenOf(QString(1025, u'a'), u"a\nb"_s).isEmpty());
    EXPECT_EQ(
        activationTokenOf(QString(1024, u'a'), u"host name/7_TIME1 é"_s).startupId,
        u"host name/7_TIME1 é"_s);
}

} // namespace
} // namespace quorvane
