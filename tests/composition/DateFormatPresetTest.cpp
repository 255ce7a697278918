// SPDX-License-Identifier: MIT
#include <composition/DateFormatPreset.h>

#include <QStringList>
#include <gtest/gtest.h>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

TEST(DateFormatPreset, CasesHaveTheirLabelsInOrder) {
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

TEST(DateFormatPreset, IsFoundByItsExactLabel) {
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
