// SPDX-License-Identifier: MIT
#include <model/PresentationMode.h>

#include <gtest/gtest.h>

#include <algorithm>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

TEST(PresentationMode, CasesHaveTheirRawValuesInOrder) {
    ASSERT_EQ(allPresentationModes.size(), 2U);
    EXPECT_EQ(rawValue(allPresentationModes[0]), u"Popover"_s);
    EXPECT_EQ(rawValue(allPresentationModes[1]), u"Window"_s);
}

TEST(PresentationMode, EveryCaseIsListed) {
    for (int number = 0; number < 256; ++number) {
        const auto mode = static_cast<PresentationMode>(number);
        EXPECT_EQ(std::ranges::count(allPresentationModes, mode) == 1, !rawValue(mode).isEmpty())
            << number;
    }
}

TEST(PresentationMode, IsFoundByItsExactRawValue) {
    EXPECT_EQ(presentationMode(u"Popover"), PresentationMode::Popover);
    EXPECT_EQ(presentationMode(u"Window"), PresentationMode::Window);
    EXPECT_EQ(presentationMode(u"popover"), std::nullopt);
    EXPECT_EQ(presentationMode(u"Popover "), std::nullopt);
}

} // namespace
} // namespace quorvane
