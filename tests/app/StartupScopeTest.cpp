// SPDX-License-Identifier: MIT
#include "StartupScope.h"

#include <testing/CallLog.h>
#include <testing/FakeStartupNotification.h>
#include <testing/VirtualMainQueue.h>

#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

TEST(StartupScope, TellsTheDesktopOfTheEndWhenAllIsDone) {
    VirtualMainQueue queue;
    CallLog log(queue);
    FakeStartupNotification notification(log);
    {
        const StartupScope scope(notification, {u"token"_s, {}});
        ASSERT_EQ(log.calls().size(), 1U);
        EXPECT_EQ(log.calls().back().what, "startup begins token");
    }
    ASSERT_EQ(log.calls().size(), 2U);
    EXPECT_EQ(log.calls().back().what, "startup ends");
}

} // namespace
} // namespace quorvane
