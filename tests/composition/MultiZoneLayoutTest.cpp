// SPDX-License-Identifier: MIT
#include <composition/MultiZoneLayout.h>

#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

TEST(MultiZoneLayout, CasesHaveTheirLabelsInOrder) {
    ASSERT_EQ(allMultiZoneLayouts.size(), 2U);
    EXPECT_EQ(rawValue(allMultiZoneLayouts[0]), u"Inline"_s);
    EXPECT_EQ(rawValue(allMultiZoneLayouts[1]), u"Lines"_s);
}

TEST(MultiZoneLayout, IsFoundByItsExactLabel) {
    EXPECT_EQ(multiZoneLayout(u"Inline"), MultiZoneLayout::Inline);
    EXPECT_EQ(multiZoneLayout(u"Lines"), MultiZoneLayout::Lines);
    EXPECT_EQ(multiZoneLayout(u"lines"), std::nullopt);
    EXPECT_EQ(multiZoneLayout(u""), std::nullopt);
}

} // namespace
} // namespace quorvane
