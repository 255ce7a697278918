// SPDX-License-Identifier: MIT
#include "BracketTranslator.h"

#include <composition/MultiZoneLayout.h>

#include <QCoreApplication>
#include <gtest/gtest.h>

#include <algorithm>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

TEST(MultiZoneLayout, CasesHaveTheirRawValuesInOrder) {
    ASSERT_EQ(allMultiZoneLayouts.size(), 2U);
    EXPECT_EQ(rawValue(allMultiZoneLayouts[0]), u"Inline"_s);
    EXPECT_EQ(rawValue(allMultiZoneLayouts[1]), u"Lines"_s);
}

TEST(MultiZoneLayout, EveryCaseIsListed) {
    for (int number = 0; number < 256; ++number) {
        const auto layout = static_cast<MultiZoneLayout>(number);
        EXPECT_EQ(std::ranges::count(allMultiZoneLayouts, layout) == 1, !rawValue(layout).isEmpty())
            << number;
    }
}

TEST(MultiZoneLayout, LabelFollowsTheTranslatorAndRawValueDoesNot) {
    int count = 0;
    QCoreApplication application(count, nullptr);
    BracketTranslator brackets;
    ASSERT_TRUE(QCoreApplication::installTranslator(&brackets));
    EXPECT_EQ(translatedLabel(MultiZoneLayout::Lines), u"[MultiZoneLayout:Lines]"_s);
    EXPECT_EQ(translatedLabel(MultiZoneLayout::Inline), u"[MultiZoneLayout:Inline]"_s);
    EXPECT_EQ(rawValue(MultiZoneLayout::Lines), u"Lines"_s);
}

TEST(MultiZoneLayout, IsFoundByItsExactRawValue) {
    EXPECT_EQ(multiZoneLayout(u"Inline"), MultiZoneLayout::Inline);
    EXPECT_EQ(multiZoneLayout(u"Lines"), MultiZoneLayout::Lines);
    EXPECT_EQ(multiZoneLayout(u"lines"), std::nullopt);
    EXPECT_EQ(multiZoneLayout(u""), std::nullopt);
}

} // namespace
} // namespace quorvane
