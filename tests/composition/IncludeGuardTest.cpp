// SPDX-License-Identifier: MIT
#include <composition/IncludeGuard.h>

#include <gtest/gtest.h>

namespace quorvane {
namespace {

TEST(IncludeGuard, OnlyTheSwitchThatIsOnAloneIsDisabled) {
    EXPECT_EQ(IncludeGuard::of(true, true), (IncludeGuard{true, true}));
    EXPECT_EQ(IncludeGuard::of(true, false), (IncludeGuard{false, true}));
    EXPECT_EQ(IncludeGuard::of(false, true), (IncludeGuard{true, false}));
    EXPECT_EQ(IncludeGuard::of(false, false), (IncludeGuard{true, true}));
}

} // namespace
} // namespace quorvane
