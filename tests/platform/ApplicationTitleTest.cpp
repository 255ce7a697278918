// SPDX-License-Identifier: MIT
#include <platform/ApplicationTitle.h>

#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

TEST(ApplicationTitle, IsTheGeneralNameAndBeginsWithACapital) {
    EXPECT_EQ(applicationTitle({u"mousepad"_s, u"Mousepad"_s}), u"Mousepad"_s);
    EXPECT_EQ(applicationTitle({u"xterm"_s, u"XTerm"_s}), u"XTerm"_s);
    EXPECT_EQ(applicationTitle({u"Navigator"_s, u"firefox-esr"_s}), u"Firefox-esr"_s);
}

TEST(ApplicationTitle, IsTheLastPartOfAReverseDomainName) {
    EXPECT_EQ(applicationTitle({u"org.gnome.TextEditor"_s}), u"TextEditor"_s);
    EXPECT_EQ(applicationTitle({u"org.kde.konsole."_s}), u"Konsole"_s);
}

TEST(ApplicationTitle, IsEmptyWhereThereIsNoName) {
    EXPECT_EQ(applicationTitle({}), QString());
    EXPECT_EQ(applicationTitle({QString()}), QString());
    EXPECT_EQ(applicationTitle({u"..."_s}), QString());
}

TEST(ApplicationTitle, IsOneLineWithoutMarkup) {
    EXPECT_EQ(applicationTitle({u"<b>bold</b>&amp;\n\x202e"_s}), u"Bbold/bamp;"_s);
}

TEST(ApplicationTitle, IsCutWhereItIsLong) {
    const auto title = applicationTitle({QString(1000, u'x')});
    EXPECT_EQ(title.size(), 40);
    EXPECT_TRUE(title.endsWith(u'…'));
}

} // namespace
} // namespace quorvane
