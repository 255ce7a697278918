// SPDX-License-Identifier: MIT
#include "NumberText.h"

#include <QString>
#include <gtest/gtest.h>

#include <limits>

namespace quorvane {
namespace {

using namespace Qt::StringLiterals;

struct Number {
    QString text;
    std::optional<qint64> value;
};

class NumberTextTest : public testing::TestWithParam<Number> {};

TEST_P(NumberTextTest, IsParsedWholeOrNotAtAll) {
    EXPECT_EQ(parsedNumber(GetParam().text), GetParam().value) << GetParam().text.toStdString();
}

constexpr auto least = std::numeric_limits<qint64>::min();
constexpr auto greatest = std::numeric_limits<qint64>::max();

INSTANTIATE_TEST_SUITE_P(
    Numbers,
    NumberTextTest,
    testing::Values(
        Number{u"7"_s, 7},
        Number{u"07"_s, 7},
        Number{u"+7"_s, 7},
        Number{u"-3"_s, -3},
        Number{u"-0"_s, 0},
        Number{u"9223372036854775807"_s, greatest},
        Number{u"-9223372036854775808"_s, least},
        Number{QString(1'000'000, u'0') + u"9"_s, 9}));

INSTANTIATE_TEST_SUITE_P(
    OtherTexts,
    NumberTextTest,
    testing::Values(
        Number{{}, std::nullopt},
        Number{u"+"_s, std::nullopt},
        Number{u"-"_s, std::nullopt},
        Number{u"+-7"_s, std::nullopt},
        Number{u"--7"_s, std::nullopt},
        Number{u"7-"_s, std::nullopt},
        Number{u" 7"_s, std::nullopt},
        Number{u"7 "_s, std::nullopt},
        Number{u"7\n"_s, std::nullopt},
        Number{u"7.0"_s, std::nullopt},
        Number{u"1,000"_s, std::nullopt},
        Number{u"1_000"_s, std::nullopt},
        Number{u"0x7"_s, std::nullopt},
        Number{u"1e1"_s, std::nullopt},
        Number{u"٧"_s, std::nullopt},
        Number{u"７"_s, std::nullopt},
        Number{
            u"\u2212"
            u"7"_s,
            std::nullopt}, // the minus sign of typography
        Number{QStringView(u"7\0", 2).toString(), std::nullopt},
        Number{u"9223372036854775808"_s, std::nullopt},
        Number{u"-9223372036854775809"_s, std::nullopt},
        Number{QString(1'000'000, u'9'), std::nullopt}));

} // namespace
} // namespace quorvane
