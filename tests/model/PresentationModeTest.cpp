// SPDX-License-Identifier: MIT
#include <model/PresentationMode.h>

#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

TEST(PresentationMode, CasesHaveTheirLabelsInOrder) {
    ASSERT_EQ(allPresentationModes.size(), 2U);
    EXPECT_EQ(rawValue(allPresentationModes[0]), u"Popover"_s);
    EXPECT_EQ(rawValue(allPresentationModes[1]), u"Window"_s);
}

TEST(PresentationMode, IsFoundByItsExactLabel) {
    EXPECT_EQ(presentationMode(u"Popover"), PresentationMode::Popover);
    EXPECT_EQ(presentationMode(u"Window"), PresentationMode::Window);
    EXPECT_EQ(presentationMode(u"popover"), std::nullopt);
    EXPECT_EQ(presentationMode(u"Popover "), std::nullopt);
}

} // namespace
} // namespace quorvane
