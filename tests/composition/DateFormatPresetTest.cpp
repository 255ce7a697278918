// SPDX-License-Identifier: MIT
#include "BracketTranslator.h"

#include <composition/DateFormatPreset.h>

#include <QCoreApplication>
#include <QStringList>
#include <gtest/gtest.h>

#include <algorithm>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

TEST(DateFormatPreset, CasesHaveTheirRawValuesInOrder) {
    QStringList labels;
    for (const auto preset : allDateFormatPresets)
        labels.append(rawValue(preset));
    EXPECT_EQ(
        labels,
        (QStringList{
            u"Long"_s,
            u"Medium"_s,
            u"Short"_s,
            u"ISO 8601"_s,
            u"RFC 2822"_s,
            u"Date Only"_s,
            u"Time Only"_s,
            u"Day of Week"_s,
            u"Unix Timestamp"_s,
            u"Custom…"_s}));
    EXPECT_EQ(rawValue(DateFormatPreset::Custom).toUtf8().right(3), "\xE2\x80\xA6");
}

TEST(DateFormatPreset, EveryCaseIsListed) {
    for (int number = 0; number < 256; ++number) {
        const auto preset = static_cast<DateFormatPreset>(number);
        EXPECT_EQ(
            std::ranges::count(allDateFormatPresets, preset) == 1, !rawValue(preset).isEmpty())
            << number;
    }
}

TEST(DateFormatPreset, LabelFollowsTheTranslatorAndRawValueDoesNot) {
    int count = 0;
    QCoreApplication application(count, nullptr);
    BracketTranslator brackets;
    ASSERT_TRUE(QCoreApplication::installTranslator(&brackets));
    for (const auto preset : allDateFormatPresets) {
        EXPECT_EQ(translatedLabel(preset), u"[DateFormatPreset:%1]"_s.arg(rawValue(preset)));
        EXPECT_FALSE(rawValue(preset).startsWith(u'['));
    }
}

TEST(DateFormatPreset, IsFoundByItsExactRawValue) {
    for (const auto preset : allDateFormatPresets)
        EXPECT_EQ(dateFormatPreset(rawValue(preset)), preset);
    for (const auto& label :
         {u""_s,
          u"custom…"_s,
          u"CUSTOM…"_s,
          u"Custom..."_s,
          u"Custom"_s,
          u"long"_s,
          u"Long "_s,
          u"ISO8601"_s,
          u"longForm"_s})
        EXPECT_EQ(dateFormatPreset(label), std::nullopt) << label.toStdString();
}

} // namespace
} // namespace quorvane
