// SPDX-License-Identifier: MIT
#include <platform_qt/QtStartupNotification.h>

#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

constexpr auto variable = "XDG_ACTIVATION_TOKEN";

TEST(QtStartupNotification, LeavesTheTokenWhereQtLooksForItUntilTheEnd) {
    QtStartupNotification notification;
    notification.begin({u"wayland"_s, u"x11"_s});
    EXPECT_EQ(qgetenv(variable), "wayland");
    notification.end();
    EXPECT_FALSE(qEnvironmentVariableIsSet(variable));
}

TEST(QtStartupNotification, TakesTheTokenThatOlderLaunchersHandOnInTheOtherKey) {
    QtStartupNotification notification;
    notification.begin({{}, u"wayland"_s});
    EXPECT_EQ(qgetenv(variable), "wayland");
    notification.end();
}

TEST(QtStartupNotification, WithoutATokenKeepsTheOneThatTheTrayGave) {
    qputenv(variable, "of the tray");
    QtStartupNotification notification;
    notification.begin({});
    EXPECT_EQ(qgetenv(variable), "of the tray");
    notification.end();
}

} // namespace
} // namespace quorvane
