// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <wayland_sway/SwayCommands.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

const SwayCriteria panel{41, u"Quorvane"_s};

TEST(SwayCommands, NameTheWindowOfOneProcess) {
    EXPECT_EQ(swayFocus(panel), u"[pid=41 title=\"^Quorvane$\"] focus"_s);
    EXPECT_EQ(
        swayMove(panel, {-5, 20}), u"[pid=41 title=\"^Quorvane$\"] move absolute position -5 20"_s);
}

TEST(SwayCommands, HaveOneCommandInEachRule) {
    for (const auto& rule :
         {swayRuleToFloat(panel), swayRuleToStick(panel), swayRuleToMove(panel, {1, 2})}) {
        EXPECT_TRUE(rule.startsWith(u"for_window [pid=41 title=\"^Quorvane$\"] "_s));
        EXPECT_FALSE(rule.contains(u','));
        EXPECT_FALSE(rule.contains(u';'));
    }
}

TEST(SwayCommands, TakeTitlesAsTheyAre) {
    EXPECT_EQ(
        swayFocus({1, u"a \"b\" (c)"_s}),
        u"[pid=1 title=\"^a\\ \\\\\"b\\\\\"\\ \\(c\\)$\"] focus"_s);
}

} // namespace
} // namespace quorvane
