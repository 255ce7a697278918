// SPDX-License-Identifier: MIT
#include <controls/TextStyle.h>

#include <QFontDatabase>
#include <QFontInfo>
#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

/// Of a family that has regular and bold letters, but none between them.
class FamilyWithoutMediumLetters : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(QFontInfo(body).family(), u"DejaVu Sans"_s);
        for (const auto& style : QFontDatabase::styles(body.family()))
            ASSERT_NE(QFontDatabase::weight(body.family(), style), QFont::Medium)
                << qPrintable(style);
    }

    QFont body{u"DejaVu Sans"_s, 10};
};

TEST_F(FamilyWithoutMediumLetters, HasTheRegularOnesForThem) {
    const auto medium = textFont(body, TextStyle::Callout, QFont::Medium);
    EXPECT_EQ(medium, textFont(body, TextStyle::Callout, QFont::Normal));
}

TEST(FamilyWithMediumLetters, HasThem) {
    const QFont body(u"Inter"_s, 10);
    ASSERT_EQ(QFontInfo(body).family(), u"Inter"_s);
    EXPECT_EQ(textFont(body, TextStyle::Callout, QFont::Medium).weight(), QFont::Medium);
}

TEST_F(FamilyWithoutMediumLetters, HasItsBoldOnesForHeadings) {
    EXPECT_EQ(textFont(body, TextStyle::Headline).weight(), QFont::DemiBold);
    EXPECT_EQ(textFont(body, TextStyle::Body, QFont::DemiBold).weight(), QFont::DemiBold);
}

} // namespace
} // namespace quorvane
